import flash.display.Stage;
import flash.events.KeyboardEvent;
import flash.ui.Keyboard;

/** Turns keys into turns of pages. **/
class Keys {
	public static function listen(stage:Stage, book:Book, turner:Turner) {
		stage.addEventListener(KeyboardEvent.KEY_DOWN, event -> {
			if (event.ctrlKey || event.altKey)
				return;
			var onward = book.config.rightToLeft ? -1 : 1;
			switch event.keyCode {
				case Keyboard.RIGHT:
					turner.step(onward);
				case Keyboard.LEFT:
					turner.step(-onward);
				case Keyboard.PAGE_DOWN:
					turner.step(1);
				case Keyboard.PAGE_UP:
					turner.step(-1);
				case Keyboard.SPACE:
					turner.step(event.shiftKey ? -1 : 1);
				case Keyboard.HOME:
					turner.go(0);
				case Keyboard.END:
					turner.go(book.views.count - 1);
				default:
			}
		});
	}
}
