import LeafPainter.Look;
import flash.geom.Point;

enum LeafEnd {
	/** It goes on to the new view. **/
	Over;

	/** It falls back. **/
	Back;

	/** It stays, lifted a little. **/
	Peek;
}

/** A way of the grabbed point that runs by itself. **/
typedef Motion = {
	start:Int,
	/** Milliseconds. **/
	time:Float,
	from:Point,
	to:Point,
	/** How far the way bends towards the middle of the leaf. **/
	lift:Float,
	slideFrom:Float,
	slideTo:Float,
	end:LeafEnd
}

/** A leaf in the air. **/
class Leaf {
	/** View that is left, and view that is turned to. **/
	public final from:Int;

	public final to:Int;

	/** It lies on the right while it is flat. **/
	public final onRight:Bool;

	/** It comes back from being turned over: single pages, backwards. **/
	public final reversed:Bool;

	public final look:Look;

	/** Where the grabbed point lies in the flat leaf. **/
	public final edge:Point;

	public var held:Point;

	/** How far the book has moved, 0 to 1, to where the new view stands. **/
	public var slide = 0.0;

	/** None while a pointer holds the leaf. **/
	public var motion:Null<Motion>;

	public function new(from:Int, to:Int, onRight:Bool, reversed:Bool, look:Look, edge:Point) {
		this.from = from;
		this.to = to;
		this.onRight = onRight;
		this.reversed = reversed;
		this.look = look;
		this.edge = edge;
		held = reversed ? new Point(-edge.x, edge.y) : edge.clone();
	}

	public function isGoing(end:LeafEnd):Bool {
		return motion != null && motion.end == end;
	}

	/** Moves the leaf along its way and tells how much of the way has passed, 0 to 1. **/
	public function advance(now:Int):Float {
		var passed = Math.min(1, (now - motion.start) / motion.time);
		var isFresh = Math.abs(motion.from.x) > look.width * 0.8;
		var eased = isFresh ? easeInOut(passed) : 1 - Math.pow(1 - passed, 3);
		var wanted = Point.interpolate(motion.to, motion.from, eased);
		wanted.y += motion.lift * Math.sin(Math.PI * eased);
		held = Fold.reachable(wanted, edge, look.height);
		slide = motion.slideFrom + (motion.slideTo - motion.slideFrom) * eased;
		return passed;
	}

	static function easeInOut(t:Float):Float {
		return t < 0.5 ? 4 * t * t * t : 1 - Math.pow(2 - 2 * t, 3) / 2;
	}
}
