import type { Express, Request, Response } from 'express';

export function includeMe(app: Express) {
  app.post('/tag/19', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/tag/19' });
  });

}
