import type { Express, Request, Response } from 'express';

export function includeMe(app: Express) {
  app.post('/tag/6', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/tag/6' });
  });

}
