import Views.Pages;
import flash.display.Sprite;
import flash.geom.Rectangle;

/** The standing pages: what lies on the table while no leaf is in the air. **/
class Book extends Sprite {
	/** Widest edge of the stack of pages that lies under each side. **/
	static inline final WIDEST_STACK = 9;

	public final config:Config;
	public final images:PageImages;
	public var views(default, null):Views;
	public var layout(default, null):Layout;

	/** Called with a page whose picture has arrived or failed. **/
	public var onImage:Int->Void = _ -> {};

	final shadow = new Sprite();
	final left = new StandingPage(true);
	final right = new StandingPage(false);
	var shown:Pages = {left: 0, right: 0};
	var turned = 0.0;

	public function new(config:Config) {
		super();
		this.config = config;
		images = new PageImages(config.pages);
		images.onChange = page -> {
			if (page == shown.left || page == shown.right)
				paint();
			onImage(page);
		};
		mouseEnabled = mouseChildren = false;
		addChild(shadow);
		addChild(left);
		addChild(right);
	}

	public function fitInto(area:Rectangle) {
		var first = images.get(1);
		var aspect = first.width > 0 && first.height > 0 ? first.width / first.height : 0.75;
		layout = new Layout(area, aspect, config);
		views = new Views(config.pages.length, layout.spread, config.rightToLeft);
		y = layout.top;
	}

	/** How far the book is moved aside so that a page standing alone is in the middle. **/
	public function shiftFor(view:Int):Float {
		if (!layout.spread)
			return 0;
		var pages = views.at(view);
		if (pages.left == 0)
			return -layout.pageWidth / 2;
		return pages.right == 0 ? layout.pageWidth / 2 : 0;
	}

	public function moveTo(shift:Float) {
		x = layout.spineX + shift;
	}

	/** @param turned share of the book that lies on the side where it begins **/
	public function show(pages:Pages, turned:Float) {
		shown = pages;
		this.turned = turned;
		paint();
	}

	/** Loads views and what lies around the first of them, and drops the rest. **/
	public function keep(wanted:Array<Int>) {
		var around = [for (step in [1, -1, 2, -2]) wanted[0] + step];
		var pages = [for (view in wanted.concat(around)) if (views.has(view)) for (page in views.pagesOf(view)) page];
		images.want(pages);
	}

	/** A side of a leaf, as page standing or in the air. **/
	public function face(page:Int):Face {
		return new Face(page > 0 ? images.get(page) : null, layout.pageWidth, layout.pageHeight, config.pageColor, bound);
	}

	/** The unprinted back of a single page. **/
	public function backOf(page:Int):Face {
		return new Face(images.get(page), layout.pageWidth, layout.pageHeight, config.pageColor, false, true);
	}

	/** Place of the page on the left or right in the window, null where there is none. **/
	public function placeOf(onLeft:Bool):Null<Rectangle> {
		if ((onLeft ? shown.left : shown.right) == 0)
			return null;
		return new Rectangle(onLeft ? x - layout.pageWidth : x, y, layout.pageWidth, layout.pageHeight);
	}

	var bound(get, never):Bool;

	function get_bound():Bool {
		return layout.spread && Options.BOUND;
	}

	function paint() {
		for (side in [left, right]) {
			var page = side.onLeft ? shown.left : shown.right;
			side.show(page > 0 ? face(page) : null, page > 0 ? images.get(page) : null);
		}
		paintShadow();
	}

	function paintShadow() {
		var graphics = shadow.graphics;
		graphics.clear();
		var from = shown.left > 0 ? -layout.pageWidth : 0;
		var to = shown.right > 0 ? layout.pageWidth : 0;
		if (from == to)
			return;
		var box = new Rectangle(from, 0, to - from, layout.pageHeight);
		SoftShadow.beneath(graphics, shifted(box, 12, 18), 44, 0.4);
		SoftShadow.beneath(graphics, shifted(box, 0, 2), 7, 0.34);
		if (!layout.spread)
			return;
		var thickness = Math.min(WIDEST_STACK, 1 + config.pages.length / 12);
		var begun = config.rightToLeft ? 1 - turned : turned;
		if (shown.left > 0)
			paintStack(-1, Math.round(begun * thickness));
		if (shown.right > 0)
			paintStack(1, Math.round((1 - begun) * thickness));
	}

	/** A box made smaller all round and moved down. **/
	static function shifted(box:Rectangle, smaller:Float, down:Float):Rectangle {
		return new Rectangle(box.x + smaller, box.y + smaller + down, box.width - 2 * smaller, box.height - 2 * smaller);
	}

	/** Edges of the pages that lie under the one that is seen. **/
	function paintStack(sign:Int, thickness:Int) {
		var graphics = shadow.graphics;
		for (index in 0...thickness) {
			graphics.beginFill(index % 2 == 0 ? 0xcfcbc4 : 0xf7f5f1);
			var x = layout.pageWidth + index;
			graphics.drawRect(sign > 0 ? x : -x - 1, 1, 1, layout.pageHeight - 2);
			graphics.endFill();
		}
	}
}
