import flash.display.Sprite;
import flash.events.MouseEvent;
import flash.geom.Rectangle;

using Lambda;

/** A strip of small pages over the bar. It shows as many as fit and pages through the rest. **/
class Thumbnails extends Sprite {
	/** Pictures are large before they are made small, so only few are held at a time. **/
	static inline final MOST = 12;

	static inline final PAGE_HEIGHT = 84;
	static inline final GAP = 14;
	static inline final SIDE = 52;
	static inline final TOP = 14;

	final book:Book;
	final turner:Turner;
	final strip = new Sprite();
	final back:BarButton;
	final onward:BarButton;
	var shown:Array<Thumbnail> = [];
	var area = new Rectangle();

	/** First page of the strip. **/
	var first = 1;

	public function new(book:Book, turner:Turner) {
		super();
		this.book = book;
		this.turner = turner;
		visible = false;
		var ink = Ink.on(book.config.thumbnailsColor);
		var way = book.config.rightToLeft ? -1 : 1;
		back = new BarButton(Signs.PREVIOUS, ink, () -> scroll(-way));
		onward = new BarButton(Signs.NEXT, ink, () -> scroll(way));
		addChild(strip);
		addChild(back);
		addChild(onward);
		addEventListener(MouseEvent.MOUSE_DOWN, event -> event.stopPropagation());
		addEventListener(MouseEvent.MOUSE_WHEEL, event -> {
			event.stopPropagation();
			scroll(event.delta < 0 ? 1 : -1);
		});
	}

	public function toggle() {
		visible = !visible;
		if (visible)
			showAround(firstPageInView());
		else
			clear();
	}

	/** Follows the shown page. **/
	public function update() {
		if (!visible)
			return;
		var page = firstPageInView();
		if (shown.exists(thumbnail -> thumbnail.page == page))
			mark();
		else
			showAround(page);
	}

	public function layOut(area:Rectangle) {
		this.area = area;
		y = area.bottom - Bar.HEIGHT - 20 - stripHeight;
		x = area.x + 10;
		if (visible)
			showAround(firstPageInView());
	}

	var stripHeight(get, never):Float;

	function get_stripHeight():Float {
		return PAGE_HEIGHT + Thumbnail.LABEL_HEIGHT + 2 * TOP;
	}

	var pageWidth(get, never):Float;

	function get_pageWidth():Float {
		return Math.min(140, Math.round(PAGE_HEIGHT * book.layout.pageWidth / book.layout.pageHeight));
	}

	/** Thumbnails that fit side by side. **/
	var room(get, never):Int;

	function get_room():Int {
		var fitting = Math.floor((area.width - 20 - 2 * SIDE + GAP) / (pageWidth + GAP));
		return Std.int(Math.max(1, Math.min(MOST, fitting)));
	}

	function firstPageInView():Int {
		return book.views.pagesOf(turner.current)[0];
	}

	function showAround(page:Int) {
		first = page - (room >> 1);
		fill();
	}

	function scroll(steps:Int) {
		first += steps * room;
		fill();
	}

	function fill() {
		clear();
		var count = book.views.pageCount;
		first = Std.int(Math.max(1, Math.min(first, count - room + 1)));
		var last = Std.int(Math.min(count, first + room - 1));
		var width = area.width - 20;
		var taken = (last - first + 1) * (pageWidth + GAP) - GAP;
		for (page in first...last + 1) {
			var thumbnail = new Thumbnail(page, book.config, pageWidth, PAGE_HEIGHT, () -> turner.go(book.views.viewOf(page)));
			var place = book.config.rightToLeft ? last - page : page - first;
			thumbnail.x = Math.round((width - taken) / 2 + place * (pageWidth + GAP));
			thumbnail.y = TOP;
			strip.addChild(thumbnail);
			shown.push(thumbnail);
		}
		mark();
		paint(width);
		placeButtons(width, first <= 1, last >= count);
	}

	function mark() {
		var inView = book.views.pagesOf(turner.current);
		for (thumbnail in shown)
			thumbnail.mark(inView.contains(thumbnail.page));
	}

	function placeButtons(width:Float, atStart:Bool, atEnd:Bool) {
		back.enabled = !(book.config.rightToLeft ? atEnd : atStart);
		onward.enabled = !(book.config.rightToLeft ? atStart : atEnd);
		back.x = 7;
		onward.x = width - BarButton.WIDTH - 7;
		back.y = onward.y = TOP + (PAGE_HEIGHT - BarButton.HEIGHT) / 2;
	}

	function paint(width:Float) {
		graphics.clear();
		SoftShadow.beneath(graphics, new Rectangle(10, 14, width - 20, stripHeight - 20), 24, 0.34);
		graphics.beginFill(book.config.thumbnailsColor, 0.95);
		graphics.drawRoundRect(0, 0, width, stripHeight, 20, 20);
		graphics.endFill();
	}

	function clear() {
		for (thumbnail in shown) {
			thumbnail.drop();
			strip.removeChild(thumbnail);
		}
		shown = [];
	}
}
