import type { Express, Request, Response } from 'express';

export function includeMe(app: Express) {
  app.post('/orders', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/orders' });
  });

  app.get('/orders/:orderId', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/orders/:orderId' });
  });

}
