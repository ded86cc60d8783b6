// Types only: globals that the scripts of a book's page share, and browser APIs that the type checker does not know.

/** How the pages of the template turn; the build puts it in. */
declare const TURN: string | undefined;
/** Texts of each script, in the form that learn() takes; the build puts them in. */
declare const PAGE_TEXTS: string;
declare const WEB_TEXTS: string;
declare const OFFLINE_TEXTS: string;
declare const READING_TEXTS: string;
declare const NOTES_TEXTS: string;
declare const VECTORS_TEXTS: string;
/** Codes of the languages that have a file of texts in books. */
declare const LANGUAGES: string;
/** Style sheets of the reading view, of notes and of enlarged pages. */
declare const READING_STYLE: string;
declare const VECTORS_STYLE: string;
declare const NOTES_STYLE: string;

interface Window {
  /** What the page has of the configuration; nothing where the player is to request it. */
  folveroConfiguration?: {
    /** What early.js has requested: a response over http, an event from disk. */
    asked?: Promise<Response | Event | void>;
    /** Whether the page holds the configuration itself. */
    here: boolean;
    /** Whether that is a start list's, and the book has the whole configuration in files. */
    whole?: boolean;
  };
  /** Base64 of the enciphered configuration, once its script has run. */
  FolveroUserConfig?: string;
  /** Texts of the reader's language by section, in the form that learn() takes; missing in English. */
  folveroTexts?: Record<string, string>;
  /** Other scripts leave here what they add to the book before the player's own runs. */
  folveroExtensions?: import('./src/player.js').Extension[];
  /** In the preview of the window only. */
  folveroPreview?: Readonly<{ applySettings(document: string): void }>;
  /** Address of a file of the book that is not beside the page. */
  folveroFile?(path: string): string | Promise<string> | undefined;
  /** The files of a single-file book. */
  folveroSingle?: import('./web/singlefile.js').SingleFile;
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
