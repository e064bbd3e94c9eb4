
      import type { JSONValue } from "@tessel/spec-tools-core";
      
      export type APIClientErrorKind = 'config' | 'network' | 'logic';
      
      export class APIClientError extends Error {
        readonly kind: APIClientErrorKind;
        readonly original: unknown;
      
        constructor(kind: APIClientErrorKind, message: string, original?: unknown) {
          super(message);
          this.name = 'APIClientError';
          this.kind = kind;
          this.original = original;
        }
      }
      
      export type FetchFunc = (url: string, init?: RequestInit) => Promise<Response>;
      export type SuccessCallbackFunc = (response: Response) => void;
      
      let rootUrl: string | undefined;
      let fetcher: FetchFunc | undefined = global.fetch;
      let successCallback: SuccessCallbackFunc | undefined;
      
      export type InitParams = {
        rootUrl: string;
        fetcher?: FetchFunc;
        successCallback?: SuccessCallbackFunc;
      };
      
      export function init(params: InitParams): void {
        if (!params.rootUrl) {
          throw new APIClientError('config', 'Expected rootUrl to be a non-empty string');
        }
        rootUrl = params.rootUrl;
        if (params.fetcher) fetcher = params.fetcher;
        if (params.successCallback) successCallback = params.successCallback;
      }
      
      export function makeUrl(path: string): URL {
        if (!rootUrl) throw new APIClientError('config', 'Root URL is not set');
        return new URL(\`\${rootUrl}\${path}\`);
      }
      
      let authCookieName: string | undefined;
      let authCookie: string | undefined;
      
      export function setAuthCookie(name: string, value: string): void {
        if (!name || !value) {
          throw new APIClientError('config', 'Expected cookie name and value to be non-empty');
        }
        authCookieName = name;
        authCookie = value;
      }
      
      export type ExtraCallParams = {
        authCookieName?: string;
        authCookie?: string;
        xForwardedFor?: string;
        xForwardedHost?: string;
        xForwardedProto?: string;
      };
      
      export function authorizeRequest(request: RequestInit, extraParams?: ExtraCallParams): void {
        if (typeof window !== 'undefined') {
          request.credentials = "include";
          return;
        }
        const name = extraParams?.authCookieName ?? authCookieName;
        const value = extraParams?.authCookie ?? authCookie;
        if (!name || !value) throw new APIClientError('config', 'Authorization cookie is not set');
        request.headers = { ...(request.headers as Record<string, string>), cookie: \`\${name}=\${value}\` };
      }
      
      export function applyExtraParams(request: RequestInit, extraParams?: ExtraCallParams): void {
        if (!extraParams) return;
        const headers = { ...(request.headers as Record<string, string>) };
        if (extraParams.xForwardedFor) headers["X-Forwarded-For"] = extraParams.xForwardedFor;
        if (extraParams.xForwardedHost) headers["X-Forwarded-Host"] = extraParams.xForwardedHost;
        if (extraParams.xForwardedProto) headers["X-Forwarded-Proto"] = extraParams.xForwardedProto;
        request.headers = headers;
      }
      
      export function addQueryParam(url: URL, name: string, value: unknown): void {
        if (value !== undefined) url.searchParams.append(name, String(value));
      }
      
      export const COMMON_HEADERS: Record<string, string> = {
        "X-Requested-With": "XMLHttpRequest",
        Accept: "application/vnd.api+json",
        "Content-Type": "application/vnd.api+json",
      };
      
      export async function callApi(url: URL, request: RequestInit): Promise<Response> {
        if (!fetcher) throw new APIClientError('config', 'Fetch function is not set');
        let response: Response;
        try {
          response = await fetcher(url.toString(), request);
        } catch (error) {
          throw new APIClientError('network', \`Network error when calling \${url.toString()}\`, error);
        }
        if (!response.ok) throw new APIClientError('logic', 'Request failed', response);
        dispatchSuccess(response);
        return response;
      }
      
      export async function callJsonApi(url: URL, request: RequestInit): Promise<JSONValue> {
        const response = await callApi(url, request);
        try {
          return (await response.json()) as JSONValue;
        } catch (error) {
          throw new APIClientError('logic', \`Response of \${url.toString()} is not valid JSON\`, error);
        }
      }
      
      function dispatchSuccess(response: Response): void {
        if (successCallback) successCallback(response);
      }
