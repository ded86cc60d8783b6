import flash.display.GradientType;
import flash.display.Graphics;
import flash.geom.Matrix;
import flash.geom.Point;

/** One step of a shade: its place from 0 to 1, colour and opacity. **/
typedef Step = {at:Float, color:Int, alpha:Float};

/** Light or darkness that changes along a line. **/
class Shade {
	final from:Point;
	final angle:Float;
	final reach:Float;
	final steps:Array<Step>;

	/**
		@param from where the first step lies
		@param angle direction in radians
		@param reach distance of the last step from the first
	**/
	public function new(from:Point, angle:Float, reach:Float, steps:Array<Step>) {
		this.from = from;
		this.angle = angle;
		this.reach = Math.max(0.5, reach);
		this.steps = steps;
	}

	/** Lays the shade on an outline; the matrix moves both. **/
	public function fill(graphics:Graphics, outline:Array<Point>, map:Matrix) {
		if (outline.length < 3)
			return;
		var matrix = new Matrix();
		var middleX = from.x + Math.cos(angle) * reach / 2;
		var middleY = from.y + Math.sin(angle) * reach / 2;
		matrix.createGradientBox(reach, reach, angle, middleX - reach / 2, middleY - reach / 2);
		matrix.concat(map);
		graphics.beginGradientFill(GradientType.LINEAR, [for (step in steps) step.color], [for (step in steps) step.alpha],
			[for (step in steps) Math.round(step.at * 255)], matrix);
		Outline.draw(graphics, outline, map);
		graphics.endFill();
	}
}
