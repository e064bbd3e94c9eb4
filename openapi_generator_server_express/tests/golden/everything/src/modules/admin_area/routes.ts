import type { Express, Request, Response } from 'express';

export function includeMe(app: Express) {
  app.get('/hidden', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/hidden' });
  });

  app.delete('/pets', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/pets' });
  });

  app.get('/shared', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/shared' });
  });

}
