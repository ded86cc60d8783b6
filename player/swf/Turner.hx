import Leaf.LeafEnd;
import Views.Pages;
import flash.Lib;
import flash.display.Sprite;
import flash.events.Event;
import flash.geom.Point;

/** Turns leaves: by itself or under a pointer. **/
class Turner extends Sprite {
	static inline final QUICK_MS = 220.0;
	static inline final HURRIED_MS = 110.0;

	public var current(default, null) = 0;
	public var leaf(default, null):Null<Leaf>;
	public var onTurn:Void->Void = () -> {};
	public var onLanded:Void->Void = () -> {};

	final book:Book;
	final painter = Options.painter();

	/** View asked for while a leaf was on its way, -1 for none. **/
	var pending = -1;

	public function new(book:Book) {
		super();
		this.book = book;
		mouseEnabled = mouseChildren = false;
		addEventListener(Event.ENTER_FRAME, _ -> advance());
	}

	/** View that the reader will see once everything in the air has landed. **/
	public var destination(get, never):Int;

	function get_destination():Int {
		if (pending >= 0)
			return pending;
		return leaf != null && leaf.isGoing(Over) ? leaf.to : current;
	}

	public var turning(get, never):Bool;

	function get_turning():Bool {
		return leaf != null && !leaf.isGoing(Peek);
	}

	/** Takes the leaf out of the air before the book is laid out anew. **/
	public function halt() {
		leaf = null;
		graphics.clear();
	}

	/** Shows a view at once. **/
	public function stand(view:Int) {
		halt();
		pending = -1;
		current = book.views.clamp(view);
		book.keep([current]);
		showStanding();
		onLanded();
	}

	/** Turns to a view; asked while a leaf is on its way, that leaf hurries and the turn follows. **/
	public function go(wanted:Int) {
		var view = book.views.clamp(wanted);
		if (leaf != null && leaf.motion == null)
			return;
		if (leaf != null && leaf.isGoing(Over)) {
			pending = view;
			hurry();
			return;
		}
		if (view == current)
			return;
		turnOver(view, book.config.moveTime * 1000);
	}

	/** @param steps views forward, negative: backward **/
	public function step(steps:Int) {
		go(destination + steps);
	}

	/**
		A pointer takes the leaf that leads to a view; tells whether there is such a leaf.
		@param edgeShare where it takes the edge, 0 (top) to 1
	**/
	public function grab(view:Int, edgeShare:Float):Bool {
		if (!book.views.has(view) || leaf != null && leaf.isGoing(Over))
			return false;
		if (leaf == null || leaf.to != view)
			lift(view, edgeShare);
		leaf.motion = null;
		return true;
	}

	/** @param held where the pointer drags the edge to, in the leaf's coordinates **/
	public function drag(held:Point, slide:Float) {
		if (leaf == null || leaf.motion != null)
			return;
		leaf.held = Fold.reachable(held, leaf.edge, book.layout.pageHeight);
		leaf.slide = slide;
		draw();
	}

	/** @param over whether the held leaf goes on to the new view or falls back **/
	public function release(over:Bool) {
		if (leaf == null || leaf.motion != null)
			return;
		if (over)
			finish(Over, book.config.moveTime * 700);
		else
			finish(Back, book.config.riseTime * 800);
	}

	/** Lifts the upper (0) or lower (1) corner a little to show that the page can be turned. **/
	public function peek(view:Int, edgeShare:Float) {
		if (leaf != null || !book.views.has(view) || !Options.BENDS)
			return;
		lift(view, edgeShare);
		var width = book.layout.pageWidth;
		var inward = edgeShare < 0.5 ? 1 : -1;
		var to = new Point(leaf.edge.x - width * 0.1, leaf.edge.y + inward * width * 0.045);
		move(Peek, to, book.config.riseTime * 700, 0, 0);
	}

	/** Lets a lifted corner fall. **/
	public function endPeek() {
		if (leaf != null && leaf.isGoing(Peek))
			finish(Back, book.config.riseTime * 700);
	}

	/** Follows a picture that has arrived late. **/
	public function refresh() {
		if (leaf != null)
			draw();
	}

	function turnOver(view:Int, time:Float) {
		if (leaf == null || leaf.to != view)
			lift(view, 1);
		finish(Over, time);
	}

	/** Takes a leaf off the table, still lying flat. **/
	function lift(to:Int, edgeShare:Float) {
		dropLeaf();
		var layout = book.layout;
		var forward = to > current;
		var reversed = !layout.spread && !forward;
		var onRight = layout.spread ? forward != book.config.rightToLeft : !book.config.rightToLeft;
		var here = book.views.at(current);
		var there = book.views.at(to);
		book.keep([to, current]);
		var front = side(reversed ? there : here, onRight);
		var beneath = reversed ? here : onRight ? {left: here.left, right: there.right} : {left: there.left, right: here.right};
		leaf = new Leaf(current, to, onRight, reversed, {
			front: book.face(front),
			back: layout.spread ? book.face(side(there, !onRight)) : book.backOf(front),
			width: layout.pageWidth,
			height: layout.pageHeight,
			mirrored: !onRight,
			overPage: side(beneath, onRight) > 0,
			spread: layout.spread
		}, new Point(layout.pageWidth, edgeShare * layout.pageHeight));
		book.show(beneath, Math.min(current, to) / Math.max(1, book.views.count - 1));
		draw();
	}

	static function side(pages:Pages, right:Bool):Int {
		return right ? pages.right : pages.left;
	}

	/** @param fullTime milliseconds for a leaf that has the whole way before it **/
	function finish(end:LeafEnd, fullTime:Float) {
		var width = book.layout.pageWidth;
		var turned = (end == Over) != leaf.reversed;
		var to = new Point(turned ? -width : width, leaf.edge.y);
		var way = Math.min(1, Math.abs(leaf.held.x - to.x) / (2 * width));
		var inward = leaf.edge.y < book.layout.pageHeight / 2 ? 1 : -1;
		var time = Math.max(Math.min(fullTime, QUICK_MS), fullTime * Math.pow(way, 0.6));
		move(end, to, time, inward * width * 0.2 * way, end == Over ? 1 : 0);
		if (end == Over)
			onTurn();
	}

	function move(end:LeafEnd, to:Point, time:Float, lift:Float, slideTo:Float) {
		leaf.motion = {
			start: Lib.getTimer(),
			time: time,
			from: leaf.held.clone(),
			to: to,
			lift: lift,
			slideFrom: leaf.slide,
			slideTo: slideTo,
			end: end
		};
	}

	function hurry() {
		var motion = leaf.motion;
		var now = Lib.getTimer();
		var passed = Math.min(1, (now - motion.start) / motion.time);
		motion.time = Math.min(motion.time, HURRIED_MS / Math.max(0.05, 1 - passed));
		motion.start = Math.round(now - passed * motion.time);
	}

	function advance() {
		if (leaf == null || leaf.motion == null)
			return;
		var passed = leaf.advance(Lib.getTimer());
		if (passed >= 1 && !leaf.isGoing(Peek))
			land(leaf.isGoing(Over));
		else
			draw();
	}

	function land(over:Bool) {
		if (over)
			current = leaf.to;
		dropLeaf();
		book.keep([current]);
		showStanding();
		onLanded();
		var next = pending;
		pending = -1;
		if (next >= 0 && next != current)
			turnOver(next, Math.min(QUICK_MS * 1.6, book.config.moveTime * 1000));
	}

	function dropLeaf() {
		if (leaf == null)
			return;
		halt();
		showStanding();
	}

	function showStanding() {
		book.show(book.views.at(current), current / Math.max(1, book.views.count - 1));
		book.moveTo(book.shiftFor(current));
	}

	function draw() {
		var layout = book.layout;
		var fromShift = book.shiftFor(leaf.from);
		var shift = fromShift + (book.shiftFor(leaf.to) - fromShift) * leaf.slide;
		x = layout.spineX + shift;
		y = layout.top;
		alpha = layout.spread ? 1 : Math.min(1, (1 - Fold.turnedShare(leaf.held, layout.pageWidth)) * Options.FADE);
		graphics.clear();
		painter.draw(graphics, leaf.look, leaf.held, leaf.edge);
		book.moveTo(shift);
	}
}
