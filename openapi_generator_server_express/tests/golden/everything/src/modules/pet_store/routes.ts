import type { Express, Request, Response } from 'express';

export function includeMe(app: Express) {
  app.get('/', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/' });
  });

  app.get('/owners/:owner/pets/:id.:format', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/owners/:owner/pets/:id.:format' });
  });

  app.head('/owners/:owner/pets/:id.:format', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/owners/:owner/pets/:id.:format' });
  });

  app.get('/pets', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/pets' });
  });

  app.put('/pets', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/pets' });
  });

  app.post('/pets', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/pets' });
  });

  app.options('/pets', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/pets' });
  });

  app.head('/pets', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/pets' });
  });

  app.patch('/pets', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/pets' });
  });

  app.trace('/pets', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/pets' });
  });

  app.get('/pets/latest', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/pets/latest' });
  });

  app.get('/pets/:id', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/pets/:id' });
  });

}
