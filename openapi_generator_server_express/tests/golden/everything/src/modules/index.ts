import { type Express } from 'express';
import * as admin_area from './admin_area';
import * as pet_store from './pet_store';

export function includeMe(app: Express) {
  admin_area.includeMe(app);
  pet_store.includeMe(app);
}
