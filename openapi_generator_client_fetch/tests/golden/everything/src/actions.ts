import { COMMON_HEADERS, makeUrl, callApi, ExtraCallParams } from "./utils";

export async function root(extraParams?: ExtraCallParams) {
  const url = makeUrl("/");
}

export async function hidden(extraParams?: ExtraCallParams) {
  const url = makeUrl("/hidden");
}

export async function petOfOwner(params: Record<string, unknown>, extraParams?: ExtraCallParams) {
  const url = makeUrl("/owners/{owner}/pets/{id}.{format}");
}

export async function petOfOwnerHead(params: Record<string, unknown>, extraParams?: ExtraCallParams) {
  const url = makeUrl("/owners/{owner}/pets/{id}.{format}");
}

export async function listPets(extraParams?: ExtraCallParams) {
  const url = makeUrl("/pets");
}

export async function replacePets(extraParams?: ExtraCallParams) {
  const url = makeUrl("/pets");
}

export async function addPet(extraParams?: ExtraCallParams) {
  const url = makeUrl("/pets");
}

export async function dropPets(extraParams?: ExtraCallParams) {
  const url = makeUrl("/pets");
}

export async function petOptions(extraParams?: ExtraCallParams) {
  const url = makeUrl("/pets");
}

export async function petHead(extraParams?: ExtraCallParams) {
  const url = makeUrl("/pets");
}

export async function mendPets(extraParams?: ExtraCallParams) {
  const url = makeUrl("/pets");
}

export async function tracePets(extraParams?: ExtraCallParams) {
  const url = makeUrl("/pets");
}

export async function latestPet(extraParams?: ExtraCallParams) {
  const url = makeUrl("/pets/latest");
}

export async function getPet(params: Record<string, unknown>, extraParams?: ExtraCallParams) {
  const url = makeUrl("/pets/{id}");
}

export async function dropPet(params: Record<string, unknown>, extraParams?: ExtraCallParams) {
  const url = makeUrl("/pets/{id}");
}

export async function shared(extraParams?: ExtraCallParams) {
  const url = makeUrl("/shared");
}

export async function untagged(extraParams?: ExtraCallParams) {
  const url = makeUrl("/untagged");
}
