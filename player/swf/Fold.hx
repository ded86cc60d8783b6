import flash.geom.Point;

/**
	Geometry of a leaf that is turned over. It is bound at x = 0, its top at y = 0; flat it lies over
	0..width, turned over -width..0.
**/
class Fold {
	/** Widest roll, as a share of the leaf's width: paper that bends, not cardboard that snaps. **/
	static inline final WIDEST_ROLL = 0.13;

	/** A point of the line about which the leaf folds. **/
	public final middle:Point;

	/** Direction, in radians, in which the leaf leaves the table. **/
	public final angle:Float;

	/** Radius of the roll that the paper makes about the fold line. **/
	public final radius:Float;

	public final alongX:Float;
	public final alongY:Float;

	function new(middle:Point, angle:Float, radius:Float) {
		this.middle = middle;
		this.angle = angle;
		this.radius = radius;
		alongX = Math.cos(angle);
		alongY = Math.sin(angle);
	}

	/**
		@param held where the grabbed point of the edge is now
		@param edge where it lies in the flat leaf
		@return none while the leaf lies flat
	**/
	public static function of(held:Point, edge:Point, width:Float, height:Float):Null<Fold> {
		var way = Point.distance(edge, held);
		if (way < 0.5)
			return null;
		var normalX = (edge.x - held.x) / way;
		var normalY = (edge.y - held.y) / way;
		var middle = Point.interpolate(edge, held, 0.5);
		var room = middle.x * normalX + Math.min(middle.y * normalY, (middle.y - height) * normalY);
		var radius = Math.min(width * WIDEST_ROLL, Math.min(room * 2 / Math.PI, way / Math.PI));
		return new Fold(middle, Math.atan2(normalY, normalX), Math.max(0.01, radius));
	}

	/** Nearest place to which the grabbed point can go without tearing the leaf from its binding. **/
	public static function reachable(wanted:Point, edge:Point, height:Float):Point {
		var place = wanted.clone();
		for (_ in 0...3)
			for (bindingY in [0, height]) {
				var binding = new Point(0, bindingY);
				var limit = Point.distance(edge, binding);
				var distance = Point.distance(place, binding);
				if (distance > limit)
					place = Point.interpolate(place, binding, limit / distance);
			}
		return place;
	}

	/** How far a leaf has been turned, 0 (flat) to 1 (turned over). **/
	public static function turnedShare(held:Point, width:Float):Float {
		return Math.min(1, Math.max(0, (width - held.x) / (2 * width)));
	}

	/** Distance of a point of the flat leaf from the fold line, negative before it. **/
	public function beyond(point:Point):Float {
		return (point.x - middle.x) * alongX + (point.y - middle.y) * alongY;
	}

	/** Where paper at a distance from the fold line is seen from above. **/
	public function seenAt(u:Float):Float {
		var start = -Math.PI / 2 * radius;
		if (u <= start)
			return u;
		return u >= -start ? -u : start + radius * Math.sin((u - start) / radius);
	}

	/** The part of an outline between two distances from the fold line. **/
	public function between(outline:Array<Point>, from:Float, to:Float):Array<Point> {
		var base = middle.x * alongX + middle.y * alongY;
		var onward = Outline.cut(outline, alongX, alongY, base + from);
		return Outline.cut(onward, -alongX, -alongY, -base - to);
	}

	/** A shade across the fold, between two distances from its line. **/
	public function shade(from:Float, to:Float, steps:Array<Shade.Step>):Shade {
		return new Shade(new Point(middle.x + alongX * from, middle.y + alongY * from), angle, to - from, steps);
	}
}
