export { includeMe } from './routes';
