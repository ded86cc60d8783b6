import flash.display.GradientType;
import flash.display.Shape;
import flash.geom.Matrix;

/** The darkening of a page towards its binding. **/
class Gutter extends Shape {
	public function new(width:Float, height:Float, toTheRight:Bool) {
		super();
		var reach = width * 0.16;
		var matrix = new Matrix();
		matrix.createGradientBox(reach, height, toTheRight ? 0 : Math.PI, toTheRight ? 0 : -reach, 0);
		graphics.beginGradientFill(GradientType.LINEAR, [0, 0, 0], [0.26, 0.08, 0], [0, 60, 255], matrix);
		graphics.drawRect(toTheRight ? 0 : -reach, 0, reach, height);
		graphics.endFill();
	}
}
