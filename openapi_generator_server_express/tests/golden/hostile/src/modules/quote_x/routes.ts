import type { Express, Request, Response } from 'express';

export function includeMe(app: Express) {
  app.get('/a\\*b', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/a\\*b' });
  });

  app.get('/a\\[b', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/a\\[b' });
  });

  app.get('/ask%3Fb=c', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/ask%3Fb=c' });
  });

  app.get('/brace%7B', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/brace%7B' });
  });

  app.get('/c/\\*/%20//%20%3C!--', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/c/\\*/%20//%20%3C!--' });
  });

  app.get('/caf%C3%A9/:nam_', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/caf%C3%A9/:nam_' });
  });

  app.get('/crlf%0D%0Ax', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/crlf%0D%0Ax' });
  });

  app.get('/deep/:x[a]b\\(\\(:y\\)\\)', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/deep/:x[a]b\\(\\(:y\\)\\)' });
  });

  app.get('/dollar/\\$&\\$1', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/dollar/\\$&\\$1' });
  });

  app.get('/pct%20x', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/pct%20x' });
  });

  app.get('/pets/:pet_id', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/pets/:pet_id' });
  });

  app.get('/range/:base...:head', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/range/:base...:head' });
  });

  app.post('/tag/32', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/tag/32' });
  });

  app.get('/users\\(\':id\'\\)', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/users\\(\':id\'\\)' });
  });

  app.get('/w/:a[b]', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/w/:a[b]' });
  });

  app.get('/z\\(\\(:x', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/z\\(\\(:x' });
  });

  app.get('/:a_b/inner', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/:a_b/inner' });
  });

}
