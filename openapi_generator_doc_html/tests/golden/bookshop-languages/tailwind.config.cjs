/** @type {import('tailwindcss').Config} */
module.exports = {
  content: [
    '../../node_modules/@loomwork/spec-loom-doc-html-template/src/**/*.{astro,html,js,md,mdx,ts}',
    './node_modules/@loomwork/spec-loom-doc-html-template/src/**/*.{astro,html,js,md,mdx,ts}',
    './src/**/*.{astro,html,js,md,mdx,ts}',
  ],
  theme: {
    extend: {
      backgroundColor: {
        sidebar: '#ccc',
      },
    },
  },
};
