// Types only: globals of sw.js that the type checker does not know.

/** Which book this is, and the folder of the player that it shares with others; the publisher writes it. */
declare const BOOK: { page: string; version: string; player?: string };

/** What browsers have and the type checker does not know yet. */
type AbortSignals = typeof AbortSignal & { timeout(milliseconds: number): AbortSignal };
