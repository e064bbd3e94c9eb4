export * from "./types";
export * from "./actions";
export { init, setAuthCookie, APIClientErrorKind } from "./utils";
