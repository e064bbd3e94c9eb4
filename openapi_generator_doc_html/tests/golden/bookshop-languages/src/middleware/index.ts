export function onRequest ({ locals }, next) {
  locals.i18n = { defaultLocale: 'en' };
  return next();
}
