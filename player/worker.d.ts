// Types only: globals of sw.js that the type checker does not know.

/** Which book this is; the publisher writes it. */
declare const BOOK: { page: string; version: string };

/** What browsers have and the type checker does not know yet. */
type AbortSignals = typeof AbortSignal & { timeout(milliseconds: number): AbortSignal };
