import flash.display.DisplayObject;
import flash.display.Sprite;
import flash.display.StageDisplayState;
import flash.events.Event;
import flash.events.MouseEvent;
import flash.geom.Rectangle;
import flash.text.TextField;
import flash.text.TextFormat;
import flash.text.TextFormatAlign;

/** The bar under the book. **/
class Bar extends Sprite {
	public static inline final HEIGHT = 44;

	static inline final SIDE = 6;
	static inline final COUNTER_WIDTH = 104;
	static inline final RULE_WIDTH = 11;

	final book:Book;
	final turner:Turner;
	final ink:Int;
	final counter = new TextField();
	final left:BarButton;
	final right:BarButton;
	final full:BarButton;
	var filled = 0.0;

	public function new(book:Book, turner:Turner, slideshow:Slideshow, sounds:Sounds, thumbnails:Thumbnails) {
		super();
		this.book = book;
		this.turner = turner;
		ink = Ink.on(book.config.windowColor);
		var onward = book.config.rightToLeft ? -1 : 1;
		left = new BarButton(Signs.PREVIOUS, ink, () -> turner.step(-onward));
		right = new BarButton(Signs.NEXT, ink, () -> turner.step(onward));
		full = new BarButton(Signs.FULL, ink, switchFullScreen);
		setUpCounter();
		var parts:Array<DisplayObject> = [left, counter, right, rule(), playButton(slideshow)];
		parts = parts.concat([soundButton(sounds), new BarButton(Signs.THUMBNAILS, ink, thumbnails.toggle), full]);
		filled = SIDE;
		for (part in parts)
			append(part);
		paint();
		addEventListener(MouseEvent.MOUSE_DOWN, event -> event.stopPropagation());
		addEventListener(Event.ADDED_TO_STAGE, _ -> stage.addEventListener(Event.FULLSCREEN, _ -> showWhetherFull()));
	}

	/** Follows the shown page. **/
	public function update() {
		var views = book.views;
		counter.text = views.pagesOf(turner.current).join("\u2013") + " / " + views.pageCount;
		var atStart = turner.current == 0;
		var atEnd = turner.current == views.count - 1;
		left.enabled = !(book.config.rightToLeft ? atEnd : atStart);
		right.enabled = !(book.config.rightToLeft ? atStart : atEnd);
	}

	public function layOut(area:Rectangle) {
		scaleX = scaleY = Math.min(1, area.width / (filled + SIDE));
		x = Math.round(area.x + (area.width - (filled + SIDE) * scaleX) / 2);
		y = Math.round(area.bottom - (HEIGHT + 10) * scaleY);
	}

	function append(part:DisplayObject) {
		part.x = filled;
		if (Std.isOfType(part, BarButton))
			part.y = (HEIGHT - BarButton.HEIGHT) / 2;
		addChild(part);
		filled += part == counter ? COUNTER_WIDTH : Std.isOfType(part, BarButton) ? BarButton.WIDTH + 2 : RULE_WIDTH;
	}

	function setUpCounter() {
		counter.defaultTextFormat = new TextFormat("_sans", 15, ink, null, null, null, null, null, TextFormatAlign.CENTER);
		counter.selectable = counter.mouseEnabled = false;
		counter.width = COUNTER_WIDTH;
		counter.height = 24;
		counter.y = 11;
	}

	function playButton(slideshow:Slideshow):BarButton {
		var button = new BarButton(Signs.PLAY, ink, () -> slideshow.run(!slideshow.running));
		slideshow.onChange = () -> button.sign = slideshow.running ? Signs.PAUSE : Signs.PLAY;
		return button;
	}

	function soundButton(sounds:Sounds):BarButton {
		var button:BarButton = null;
		button = new BarButton(Signs.SOUND, ink, () -> {
			sounds.switchTo(!sounds.on);
			button.sign = sounds.on ? Signs.SOUND : Signs.SILENCE;
		});
		return button;
	}

	function rule():Sprite {
		var line = new Sprite();
		line.graphics.beginFill(ink, 0.22);
		line.graphics.drawRect(RULE_WIDTH >> 1, 12, 1, HEIGHT - 24);
		line.graphics.endFill();
		return line;
	}

	function paint() {
		var width = filled + SIDE;
		SoftShadow.beneath(graphics, new Rectangle(18, 18, width - 36, HEIGHT - 30), 22, 0.36);
		graphics.lineStyle(1, ink, 0.16);
		graphics.beginFill(book.config.windowColor, 0.95);
		graphics.drawRoundRect(0, 0, width, HEIGHT, HEIGHT, HEIGHT);
		graphics.endFill();
	}

	/** Not every page that shows the movie allows it. **/
	function switchFullScreen() {
		try {
			stage.displayState = isFull() ? StageDisplayState.NORMAL : StageDisplayState.FULL_SCREEN_INTERACTIVE;
		} catch (_:Dynamic) {
			full.enabled = false;
		}
		showWhetherFull();
	}

	function isFull():Bool {
		return stage.displayState != StageDisplayState.NORMAL;
	}

	function showWhetherFull() {
		full.sign = isFull() ? Signs.WINDOW : Signs.FULL;
	}
}
