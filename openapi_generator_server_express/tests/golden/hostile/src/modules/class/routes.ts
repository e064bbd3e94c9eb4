import type { Express, Request, Response } from 'express';

export function includeMe(app: Express) {
  app.get('/Case/:Id', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/Case/:Id' });
  });

  app.get('/a\\$b\\^c\\|d', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/a\\$b\\^c\\|d' });
  });

  app.get('/a\\(b', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/a\\(b' });
  });

  app.get('/a\\)b', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/a\\)b' });
  });

  app.get('/a\\+b', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/a\\+b' });
  });

  app.get('/back%5Cslash', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/back%5Cslash' });
  });

  app.get('/brace/%7B%7D', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/brace/%7B%7D' });
  });

  app.get('/call/:x[a]\\(\\(:b([^/]+?)', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/call/:x[a]\\(\\(:b([^/]+?)' });
  });

  app.get('/dots/:id.json', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/dots/:id.json' });
  });

  app.get('/hash%23part', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/hash%23part' });
  });

  app.get('/nul%00', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/nul%00' });
  });

  app.get('/odd/\\(\\(:x', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/odd/\\(\\(:x' });
  });

  app.get('/q\'%22%60\\$:x\\*/', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/q\'%22%60\\$:x\\*/' });
  });

  app.get('/sep%E2%80%A8x%E2%80%A9y', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/sep%E2%80%A8x%E2%80%A9y' });
  });

  app.post('/tag/1', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/tag/1' });
  });

  app.get('/two/:a:b', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/two/:a:b' });
  });

  app.get('/v1/:name\\:cancel', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/v1/:name\\:cancel' });
  });

  app.get('/:__proto__/proto', (req: Request, res: Response) => {
    res.json({ status: 'ok', id: '/:__proto__/proto' });
  });

}
