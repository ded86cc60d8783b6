// Types only: what the player passes to extensions, such as the part for web books.

import type english from '../texts/en.json';
import type { Book } from './book/book.js';
import type { BookConfig } from './book/config.js';
import type { learn, Word } from './book/words.js';
import type { Turner } from './turning/turner.js';
import type { Gestures } from './controls/gestures.js';
import type { Reading } from './controls/reading.js';
import type { Seeking } from './controls/seeking.js';
import type { Slideshow } from './controls/slideshow.js';
import type { Commands, Toolbar } from './controls/toolbar.js';
import type { Zoom } from './controls/zoom.js';
import type { Drawer } from './panels/drawer.js';
import type { Sheets } from './panels/sheets.js';
import type { Toast } from './panels/toast.js';
import type { Viewing } from './panels/viewing.js';

/** Names of all texts, those of web books included. */
export type AnyWord = Word | keyof typeof english.web | keyof typeof english.offline
  | keyof typeof english.reading | keyof typeof english.notes
  | keyof typeof english.vectors;

/** What is there before any page image is requested. */
export interface Beginning {
  root: HTMLElement;
  /** May be changed until the book is laid out. */
  config: BookConfig;
  /** What the address named at first: a page, 0 for none, and its whole fragment. */
  asked: { page: number; fragment: string };
  say(word: AnyWord, ...values: (string | number)[]): string;
  learn: typeof learn;
}

export interface Controls {
  toolbar: Toolbar;
  /** What buttons and keys do; may be added to and replaced. */
  commands: Commands;
  slideshow: Slideshow;
  drawer: Drawer;
  sheets: Sheets;
  viewing: Viewing;
  seeking: Seeking;
  zoom: Zoom;
  reading: Reading;
  gestures: Gestures;
  toast: Toast;
}

/** What is there once the controls have been created. */
export interface Parts extends Controls {
  book: Book;
  turner: Turner;
  /** Lays everything out again when the space for the book has changed. */
  relayout: () => void;
}

export interface Player extends Beginning, Parts {}

export type Say = Player['say'];

type Addition = ((parts: Parts) => void) | undefined;

/** Called before the book is laid out; the function that it returns is called once the controls are there. */
export type Extension = (beginning: Beginning) => Addition | Promise<Addition>;
