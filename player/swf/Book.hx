import flash.display.Sprite;
import flash.events.Event;
import flash.filters.DropShadowFilter;
import flash.geom.Rectangle;

/** The open book: two pages, and the leaf that is being turned. **/
class Book extends Sprite {
	public var current(default, null) = 0;
	public var onTurn:Void->Void = () -> {};
	public var onLanded:Void->Void = () -> {};

	final config:Config;
	final pages = new Map<Int, PageImage>();
	final standing = new Sprite();
	final leaf = new Sprite();
	var area = new Rectangle(0, 0, 960, 600);
	var pageWidth = 100.0;
	var pageHeight = 100.0;
	var target = 0;
	var started = 0.0;
	var pending = -1;

	public function new(config:Config) {
		super();
		this.config = config;
		standing.filters = [new DropShadowFilter(6, 90, 0, 0.45, 18, 18)];
		leaf.filters = [new DropShadowFilter(2, 90, 0, 0.4, 14, 14)];
		addChild(standing);
		addChild(leaf);
		addEventListener(Event.ENTER_FRAME, advance);
	}

	public var viewCount(get, never):Int;

	function get_viewCount():Int {
		return Std.int(config.pages.length / 2) + 1;
	}

	public var turning(get, never):Bool;

	function get_turning():Bool {
		return target != current;
	}

	public function fitInto(area:Rectangle) {
		this.area = area;
		layOut();
	}

	public function go(wanted:Int) {
		var view = Std.int(Math.max(0, Math.min(viewCount - 1, wanted)));
		if (turning) {
			pending = view;
			return;
		}
		if (view == current)
			return;
		target = view;
		started = flash.Lib.getTimer();
		onTurn();
		layOut();
	}

	public function step(steps:Int) {
		go((pending >= 0 ? pending : target) + steps);
	}

	/** Page on the left or right of a view, 0 when there is none. **/
	function pageAt(view:Int, onRight:Bool):Int {
		var page = 2 * view + (onRight != config.rightToLeft ? 1 : 0);
		return page >= 1 && page <= config.pages.length ? page : 0;
	}

	function image(page:Int):PageImage {
		if (!pages.exists(page))
			pages.set(page, new PageImage(page, config.pages[page - 1], config.pageColor, layOut));
		return pages.get(page);
	}

	function place(into:Sprite, page:Int, onRight:Bool) {
		if (page == 0)
			return;
		var picture = image(page);
		picture.layOut(pageWidth, pageHeight, onRight);
		picture.scaleX = 1;
		into.addChild(picture);
	}

	function measure() {
		var first = image(1);
		var aspect = first.pictureWidth > 0 ? first.pictureWidth / first.pictureHeight : 0.75;
		var air = Math.min(area.width, area.height) * 0.05;
		pageHeight = Math.min(area.height - 2 * air, (area.width - 2 * air) / 2 / aspect);
		pageWidth = pageHeight * aspect;
		y = area.y + (area.height - pageHeight) / 2;
	}

	function layOut() {
		measure();
		standing.removeChildren();
		leaf.removeChildren();
		var leafIsRight = (target > current) != config.rightToLeft;
		for (onRight in [false, true]) {
			var covered = turning && onRight == leafIsRight;
			place(standing, pageAt(covered ? target : current, onRight), onRight);
		}
		if (turning)
			showLeaf();
		for (view in [current + 1, current - 1])
			for (onRight in [false, true])
				if (pageAt(view, onRight) > 0)
					image(pageAt(view, onRight));
		dropFarPages();
		x = area.x + area.width / 2 + shift();
	}

	/** Moves a page that stands alone to the middle. **/
	function shift():Float {
		var share = turnedShare();
		return shiftFor(current) * (1 - share) + shiftFor(target) * share;
	}

	function shiftFor(view:Int):Float {
		if (pageAt(view, false) == 0)
			return -pageWidth / 2;
		return pageAt(view, true) == 0 ? pageWidth / 2 : 0;
	}

	function turnedShare():Float {
		if (!turning)
			return 0;
		var passed = Math.min(1, (flash.Lib.getTimer() - started) / 1000 / Math.max(0.1, config.moveTime));
		return (1 - Math.cos(Math.PI * passed)) / 2;
	}

	/** The leaf seen from above: narrowing until it stands upright, then widening on the other side. **/
	function showLeaf() {
		var share = turnedShare();
		var fromRight = (target > current) != config.rightToLeft;
		var over = share > 0.5;
		var onRight = over ? !fromRight : fromRight;
		var page = pageAt(over ? target : current, onRight);
		leaf.removeChildren();
		place(leaf, page, onRight);
		var upright = Math.cos(Math.PI * share);
		leaf.scaleX = Math.max(0.001, Math.abs(upright));
		var rise = 1 - Math.abs(upright);
		var lean = (onRight ? -1 : 1) * rise * 0.1;
		leaf.transform.matrix = new flash.geom.Matrix(leaf.scaleX, lean, 0, 1, 0, 0);
		var light = 1 - 0.35 * rise;
		leaf.transform.colorTransform = new flash.geom.ColorTransform(light, light, light);
	}

	function dropFarPages() {
		var far = [
			for (page in pages.keys())
				if (page != 1 && Math.abs(page / 2 - current) > 3 && Math.abs(page / 2 - target) > 3) page
		];
		for (page in far)
			pages.remove(page);
	}

	function advance(_) {
		if (!turning)
			return;
		if (turnedShare() < 1) {
			showLeaf();
			x = area.x + area.width / 2 + shift();
			return;
		}
		current = target;
		layOut();
		onLanded();
		var next = pending;
		pending = -1;
		if (next >= 0)
			go(next);
	}
}
