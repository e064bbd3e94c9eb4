import type { Express, Request, Response } from 'express';

export function includeMe(app: Express) {
  app.get('/books', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/books' });
  });

  app.put('/books/:isbn/cover', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/books/:isbn/cover' });
  });

}
