import { COMMON_HEADERS, makeUrl, callApi, addQueryParam, ExtraCallParams } from "./utils";

export async function listBooks(params: Record<string, unknown>, extraParams?: ExtraCallParams) {
  const url = makeUrl("/books");
  addQueryParam(url, "filter", params.filter);
  addQueryParam(url, "genre", params.genre);
  addQueryParam(url, "page", params.page);
}

export async function putCover(params: Record<string, unknown>, extraParams?: ExtraCallParams) {
  const url = makeUrl("/books/{isbn}/cover");
}

export async function createOrder(extraParams?: ExtraCallParams) {
  const url = makeUrl("/orders");
}

export async function getOrder(params: Record<string, unknown>, extraParams?: ExtraCallParams) {
  const url = makeUrl("/orders/{orderId}");
}
