import baseConfig from "@loomwork/spec-loom-doc-html-template/astro.config.mjs";

export default baseConfig;
