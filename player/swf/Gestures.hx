import flash.Lib;
import flash.display.Stage;
import flash.events.Event;
import flash.events.MouseEvent;
import flash.geom.Point;

/** How the pointer holds a leaf. **/
private typedef Grip = {
	/** Screen x of the leaf's own x: 1 or -1. **/
	sign:Int,
	gain:Float,
	pressX:Float,
	held:Point
}

private typedef Trace = {x:Float, time:Int};

/** Turns what the pointer does on the book into turns of pages. **/
class Gestures {
	static inline final DRAG_START = 7;

	/** Pixels a millisecond. **/
	static inline final FLICK_SPEED = 0.35;

	static inline final TAP_MS = 450;

	/** Wheel events closer together belong to one push, which turns one page. **/
	static inline final WHEEL_PAUSE_MS = 160;

	final book:Book;
	final turner:Turner;
	var pressed = false;
	var press = new Point();
	var pressTime = 0;
	var grip:Null<Grip>;
	var trail:Array<Trace> = [];
	var lastWheel = -WHEEL_PAUSE_MS;

	public function new(book:Book, turner:Turner, stage:Stage) {
		this.book = book;
		this.turner = turner;
		stage.addEventListener(MouseEvent.MOUSE_DOWN, event -> down(event.stageX, event.stageY));
		stage.addEventListener(MouseEvent.MOUSE_MOVE, event -> moved(event.stageX, event.stageY));
		stage.addEventListener(MouseEvent.MOUSE_UP, event -> up(event.stageX));
		stage.addEventListener(MouseEvent.MOUSE_WHEEL, wheel);
		stage.addEventListener(Event.MOUSE_LEAVE, _ -> turner.endPeek());
	}

	function down(x:Float, y:Float) {
		pressed = true;
		press = new Point(x, y);
		pressTime = Lib.getTimer();
		trail = [];
		grip = null;
	}

	function moved(x:Float, y:Float) {
		if (!pressed) {
			hover(x, y);
			return;
		}
		if (grip == null && Math.abs(x - press.x) >= DRAG_START)
			grip = grasp(x < press.x);
		if (grip == null)
			return;
		trail.push({x: x, time: Lib.getTimer()});
		if (trail.length > 6)
			trail.shift();
		drag(x, y);
	}

	function up(x:Float) {
		if (!pressed)
			return;
		pressed = false;
		if (grip != null)
			turner.release(goesOver(x));
		else if (Lib.getTimer() - pressTime < TAP_MS && Math.abs(x - press.x) < DRAG_START)
			tap(x);
		grip = null;
	}

	function grasp(toTheLeft:Bool):Null<Grip> {
		var layout = book.layout;
		var edgeShare = snapped((press.y - layout.top) / layout.pageHeight);
		if (!turner.grab(turner.current + stepsTo(toTheLeft), edgeShare))
			return null;
		var leaf = turner.leaf;
		var sign = leaf.onRight ? 1 : -1;
		var pressX = sign * (press.x - layout.spineX - book.shiftFor(turner.current));
		var within = Math.max(layout.pageWidth * 0.35, pressX);
		var gain = layout.spread ? 2 * layout.pageWidth / (layout.pageWidth + within) : 2;
		return {
			sign: sign,
			gain: Math.max(1, gain),
			pressX: pressX,
			held: leaf.held.clone()
		};
	}

	function drag(x:Float, y:Float) {
		var leaf = turner.leaf;
		if (leaf == null)
			return;
		var layout = book.layout;
		var slide = Math.min(1, Math.abs(x - press.x) / (layout.pageWidth * 1.4));
		var fromShift = book.shiftFor(leaf.from);
		var shift = fromShift + (book.shiftFor(leaf.to) - fromShift) * slide;
		var leafX = grip.sign * (x - layout.spineX - shift);
		turner.drag(new Point(grip.held.x + (leafX - grip.pressX) * grip.gain, grip.held.y + y - press.y), slide);
	}

	function goesOver(x:Float):Bool {
		var leaf = turner.leaf;
		if (leaf == null)
			return false;
		var now = Lib.getTimer();
		var recent = trail.filter(trace -> now - trace.time < 120);
		var lasted = recent.length > 0 ? now - recent[0].time : 0;
		var speed = lasted > 0 ? (x - recent[0].x) / lasted : 0;
		var onward = x < press.x ? -speed : speed;
		if (Math.abs(onward) > FLICK_SPEED)
			return onward > 0;
		var turned = Fold.turnedShare(leaf.held, leaf.look.width);
		return (leaf.reversed ? 1 - turned : turned) > 0.45;
	}

	/** A click on the outer parts of the pages, or beside them, turns that way. **/
	function tap(x:Float) {
		var zone = book.layout.spread ? 0.24 : 0.32;
		var share = (x - book.layout.left) / book.layout.bookWidth;
		if (share < zone)
			turner.step(stepsTo(false));
		else if (share > 1 - zone)
			turner.step(stepsTo(true));
	}

	/** A corner under the pointer lifts. **/
	function hover(x:Float, y:Float) {
		var layout = book.layout;
		if (layout == null || turner.turning)
			return;
		var across = (x - layout.spineX - book.shiftFor(turner.current)) / layout.pageWidth;
		var along = (y - layout.top) / layout.pageHeight;
		var nearCorner = along > -0.02 && along < 1.02 && (along < 0.16 || along > 0.84);
		var nearEdge = Math.abs(across) > 0.84 && Math.abs(across) < 1.02;
		var steps = stepsTo(across > 0);
		if (nearCorner && nearEdge && (layout.spread || steps == 1))
			turner.peek(turner.current + steps, along < 0.5 ? 0 : 1);
		else
			turner.endPeek();
	}

	function wheel(event:MouseEvent) {
		var now = Lib.getTimer();
		var pause = now - lastWheel;
		lastWheel = now;
		if (pause >= WHEEL_PAUSE_MS && event.delta != 0)
			turner.step(event.delta < 0 ? 1 : -1);
	}

	function stepsTo(right:Bool):Int {
		return right != book.config.rightToLeft ? 1 : -1;
	}

	/** Near a corner the corner itself is taken. **/
	static function snapped(share:Float):Float {
		return share < 0.3 ? 0 : share > 0.7 ? 1 : share;
	}
}
