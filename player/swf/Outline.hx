import flash.display.Graphics;
import flash.geom.Matrix;
import flash.geom.Point;

/** Convex outlines as lists of points. **/
class Outline {
	public static function rectangle(x:Float, y:Float, width:Float, height:Float):Array<Point> {
		return [
			new Point(x, y),
			new Point(x + width, y),
			new Point(x + width, y + height),
			new Point(x, y + height)
		];
	}

	/** The part of an outline in which x * normalX + y * normalY is at least a bound. **/
	public static function cut(outline:Array<Point>, normalX:Float, normalY:Float, bound:Float):Array<Point> {
		var kept = [];
		for (index => point in outline) {
			var next = outline[(index + 1) % outline.length];
			var here = point.x * normalX + point.y * normalY - bound;
			var there = next.x * normalX + next.y * normalY - bound;
			if (here >= 0)
				kept.push(point);
			if ((here >= 0) != (there >= 0)) {
				var part = here / (here - there);
				kept.push(new Point(point.x + (next.x - point.x) * part, point.y + (next.y - point.y) * part));
			}
		}
		return kept;
	}

	/** The part of an outline between two upright lines. **/
	public static function between(outline:Array<Point>, left:Float, right:Float):Array<Point> {
		return cut(cut(outline, 1, 0, left), -1, 0, -right);
	}

	/** The part of an outline between two level lines. **/
	public static function betweenLevels(outline:Array<Point>, top:Float, bottom:Float):Array<Point> {
		return cut(cut(outline, 0, 1, top), 0, -1, -bottom);
	}

	/** Draws an outline, moved by a matrix, with the fill or line that is set. **/
	public static function draw(graphics:Graphics, outline:Array<Point>, map:Matrix) {
		if (outline.length < 3)
			return;
		var start = map.transformPoint(outline[0]);
		graphics.moveTo(start.x, start.y);
		for (index in 1...outline.length) {
			var point = map.transformPoint(outline[index]);
			graphics.lineTo(point.x, point.y);
		}
		graphics.lineTo(start.x, start.y);
	}
}
