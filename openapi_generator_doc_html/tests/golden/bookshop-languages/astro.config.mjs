import baseConfig from '@loomwork/spec-loom-doc-html-template/astro.config.mjs';
import { defineConfig } from 'astro/config';

export default defineConfig({
  ...baseConfig,
  i18n: {
    locales: [
      'en',
      'de',
    ],
    defaultLocale: 'en',
    routing: {
      prefixDefaultLocale: true,
    },
  },
});
