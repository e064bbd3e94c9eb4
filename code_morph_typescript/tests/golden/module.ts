import { makeUrl, callApi } from "./utils";
import { Pet } from "./types";
import { x } from "/a'\"`${x}\\*/\r\n  \b\f\t\u000b\u001b</script>";

export async function findPets(params: Record<string, unknown>, extra?: Promise<void>, untyped): Promise<void> {
  const url = "/a'\"`${x}\\*/\r\n  \b\f\t\u000b\u001b</script>";
  const same = '/a\'"`${x}\\*/\r\n  \b\f\t</script>';
  if (params) {
  
    callApi(url);
  }
}

function empty() {
  
}

function none() {
}
export * from "./types";
export { init, setAuthCookie } from "./utils";
