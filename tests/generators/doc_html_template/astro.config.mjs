// White space stays as it is, for the pages are there to be read.
export default { compressHTML: false };
