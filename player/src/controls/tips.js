import { make, part } from '../book/dom.js';

const TIP_GAP = 9;

/** Tooltips of hovered and focused controls, with their shortcut keys. */
export class Tips {
  /** @param {HTMLElement} root */
  constructor(root) {
    this.root = root;
    this.element = part(root, '.tip');
    this.hovers = matchMedia('(hover: hover)');
    root.addEventListener('pointerover', (event) => {
      if (this.hovers.matches) this.follow(event.target);
    });
    root.addEventListener('focusin', (event) => {
      if (/** @type {Element} */ (event.target).matches(':focus-visible')) this.follow(event.target);
    });
    for (const kind of ['pointerdown', 'pointerleave', 'focusout', 'keydown']) {
      root.addEventListener(kind, () => this.hide());
    }
  }

  hide() {
    this.element.hidden = true;
  }

  /**
   * Shows the tooltip of a control, or hides it for none.
   * @param {EventTarget | null} target
   */
  follow(target) {
    const control = /** @type {Element} */ (target).closest('.bar [aria-label]:not(.seek *), .arrow, [data-tip]');
    if (!control) {
      this.hide();
      return;
    }
    const { key, tip } = /** @type {HTMLElement} */ (control).dataset;
    this.element.replaceChildren(tip || (control.getAttribute('aria-label') ?? ''),
      ...(key ? [make('kbd', '', key)] : []));
    this.element.hidden = false;
    const at = control.getBoundingClientRect();
    const { offsetWidth, offsetHeight } = this.element;
    const most = this.root.clientWidth - offsetWidth - 6;
    const above = at.top - offsetHeight - TIP_GAP;
    const top = above < 0 && !control.closest('.bar') ? at.bottom + TIP_GAP : above;
    const left = Math.max(6, Math.min(most, at.left + at.width / 2 - offsetWidth / 2));
    this.element.style.transform = 'translate(' + Math.round(left) + 'px, '
      + Math.round(top) + 'px)';
  }
}
