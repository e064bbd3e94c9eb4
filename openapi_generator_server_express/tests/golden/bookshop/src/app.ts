import express from 'express';
import { includeMe } from './modules';

const app = express();

app.use(express.json());

includeMe(app);

app.use('/', (_req, res) => {
  res.send('Hello World');
});

export default app;
