// A page is a file beside those of its folder: /operations is operations.html, which stands beside operations/.
export default { build: { format: "file" }, compressHTML: false };
