import flash.display.CapsStyle;
import flash.display.GradientType;
import flash.display.Graphics;
import flash.display.JointStyle;
import flash.display.LineScaleMode;
import flash.geom.Matrix;
import flash.geom.Point;
import flash.geom.Rectangle;

/** Shadows drawn without filters, which not every emulator has. **/
class SoftShadow {
	/** Lines of growing width that make the shadow of an outline. **/
	static inline final LAYERS = 14;

	/** Opacity of a shadow from its inner end to its outer end, as shares of its strength. **/
	static final FALL = [1, 0.62, 0.33, 0.13, 0.03, 0];

	/**
		The shadow of a shape that is drawn over it afterwards.
		@param reach how far the shadow is seen outside the outline
		@param strength opacity at the outline
	**/
	public static function around(graphics:Graphics, outline:Array<Point>, map:Matrix, reach:Float, strength:Float) {
		for (layer in 1...LAYERS + 1) {
			var share = layer / LAYERS;
			var alpha = 2 * strength * (LAYERS - layer + 1) / (LAYERS * (LAYERS + 1));
			graphics.lineStyle(2 * reach * share, 0, alpha, false, LineScaleMode.NORMAL, CapsStyle.ROUND, JointStyle.ROUND);
			Outline.draw(graphics, outline, map);
		}
		graphics.lineStyle();
	}

	/** The shadow of a rectangle, as far as it is seen outside it. **/
	public static function beneath(graphics:Graphics, box:Rectangle, reach:Float, strength:Float) {
		var left = box.left, right = box.right, top = box.top, bottom = box.bottom;
		edge(graphics, new Rectangle(left, top - reach, box.width, reach), -Math.PI / 2, strength);
		edge(graphics, new Rectangle(left, bottom, box.width, reach), Math.PI / 2, strength);
		edge(graphics, new Rectangle(left - reach, top, reach, box.height), Math.PI, strength);
		edge(graphics, new Rectangle(right, top, reach, box.height), 0, strength);
		for (corner in [new Point(left, top), new Point(right, top), new Point(left, bottom), new Point(right, bottom)]) {
			var matrix = new Matrix();
			matrix.createGradientBox(2 * reach, 2 * reach, 0, corner.x - reach, corner.y - reach);
			begin(graphics, GradientType.RADIAL, matrix, strength);
			graphics.drawRect(corner.x == left ? left - reach : right, corner.y == top ? top - reach : bottom, reach, reach);
			graphics.endFill();
		}
		graphics.beginFill(0, strength);
		graphics.drawRect(left, top, box.width, box.height);
		graphics.endFill();
	}

	static function edge(graphics:Graphics, area:Rectangle, angle:Float, strength:Float) {
		var matrix = new Matrix();
		matrix.createGradientBox(area.width, area.height, angle, area.x, area.y);
		begin(graphics, GradientType.LINEAR, matrix, strength);
		graphics.drawRect(area.x, area.y, area.width, area.height);
		graphics.endFill();
	}

	static function begin(graphics:Graphics, kind:GradientType, matrix:Matrix, strength:Float) {
		var last = FALL.length - 1;
		graphics.beginGradientFill(kind, [for (_ in FALL) 0], [for (share in FALL) share * strength],
			[for (index in 0...FALL.length) Math.round(255 * index / last)], matrix);
	}
}
