import { type Express } from 'express';
import * as books from './books';
import * as orders from './orders';

export function includeMe(app: Express) {
  books.includeMe(app);
  orders.includeMe(app);
}
