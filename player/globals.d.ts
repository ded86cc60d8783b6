// Types only: globals that the scripts of a book's page share, and browser APIs that the type checker does not know.

/** Texts of each script, in the form that learn() takes; the build puts them in. */
declare const PAGE_TEXTS: string;
declare const WEB_TEXTS: string;
declare const OFFLINE_TEXTS: string;

interface Window {
  /** early.js has asked for the configuration. */
  folveroConfiguration: {
    /** A response over http, an event from disk, nothing where the configuration is in the page. */
    asked: Promise<Response | Event | void>;
    /** Runs the script copy of the configuration, which sets FolveroUserConfig. */
    runScript: () => Promise<Event>;
    /** Whether the page holds the configuration itself. */
    here: boolean;
    /** Of a start list: the request for all of the configuration, made once it is awaited. */
    whole?: Promise<Response | Event | void>;
  };
  /** Base64 of the enciphered configuration, once its script has run; "" keeps early.js from asking for it. */
  FolveroUserConfig?: string;
  /** Other scripts leave here what they add to the book before the player's own runs. */
  folveroExtensions?: import('./src/player.js').Extension[];
  /** Address of a file of the book that is not beside the page. */
  folveroFile?(path: string): string | undefined;
  /** Called by each data file of a web book. */
  folveroData?(name: string, data: unknown): void;
}

interface Navigator {
  connection?: { saveData?: boolean };
}

interface Uint8ArrayConstructor {
  fromBase64?(base64: string): Uint8Array;
}

/** Missing in the types of the compiler's version. */
declare class DecompressionStream {
  constructor(format: 'deflate');
  readonly readable: ReadableStream<Uint8Array>;
  readonly writable: WritableStream<Uint8Array>;
}
