import LeafPainter.Look;
import flash.display.Graphics;
import flash.geom.Matrix;
import flash.geom.Point;

/** A stiff board that swings over its binding. **/
class FlipPainter implements LeafPainter {
	/** Strips in which the board is drawn; each is a little taller than the one before it. **/
	static inline final STRIPS = 24;

	/** How much taller an upright board's edge looks, being nearer to the eye. **/
	static inline final NEARNESS = 0.12;

	public function new() {}

	public function draw(graphics:Graphics, look:Look, held:Point, edge:Point) {
		var angle = Math.PI * Fold.turnedShare(held, look.width);
		var upright = Math.sin(angle);
		var isBack = angle > Math.PI / 2;
		var base = new Matrix(look.mirrored ? -1 : 1);
		shadeBeneath(graphics, look, base, Math.cos(angle), upright);
		var face = isBack ? look.back : look.front;
		var width = look.width / STRIPS;
		for (index in 0...STRIPS)
			strip(graphics, look, base, face, isBack, index * width, (index + 1) * width, angle);
		var light = new Shade(new Point(0, 0), 0, look.width, [
			{at: 0, color: 0, alpha: 0.3 * upright},
			{at: 1, color: isBack ? 0xffffff : 0, alpha: 0.18 * upright}
		]);
		light.fill(graphics, board(look, angle), boardMatrix(base, angle));
	}

	function boardMatrix(base:Matrix, angle:Float):Matrix {
		var map = new Matrix(Math.cos(angle));
		map.concat(base);
		return map;
	}

	/** Outline of the board before it is narrowed by its swing. **/
	function board(look:Look, angle:Float):Array<Point> {
		var rise = look.height * NEARNESS * Math.sin(angle) / 2;
		return [
			new Point(0, 0),
			new Point(look.width, -rise),
			new Point(look.width, look.height + rise),
			new Point(0, look.height)
		];
	}

	function strip(graphics:Graphics, look:Look, base:Matrix, face:Face, isBack:Bool, from:Float, to:Float, angle:Float) {
		var overlap = Math.min(8, 1 / Math.max(0.1, Math.abs(Math.cos(angle))));
		var end = Math.min(look.width, to + overlap);
		var taller = stretch(look, end, angle);
		var map = new Matrix(Math.cos(angle), 0, 0, taller, 0, look.height * (1 - taller) / 2);
		map.concat(base);
		// As tall as the board is at the far end, less at the near one: the edges run straight.
		var lower = look.height / 2 * (1 - stretch(look, from, angle) / taller);
		var outline = [
			new Point(from, lower),
			new Point(end, 0),
			new Point(end, look.height),
			new Point(from, look.height - lower)
		];
		face.paint(graphics, outline, map, look.mirrored != isBack);
	}

	/** How much taller the board looks at a distance from its binding. **/
	function stretch(look:Look, x:Float, angle:Float):Float {
		return 1 + NEARNESS * Math.sin(angle) * x / look.width;
	}

	function shadeBeneath(graphics:Graphics, look:Look, base:Matrix, flat:Float, upright:Float) {
		var over = Math.abs(flat) * look.width;
		var reach = Math.min(look.width, over + 0.25 * look.width * upright);
		var onOtherSide = flat < 0;
		if (reach < 1 || !onOtherSide && !look.overPage || onOtherSide && !look.spread)
			return;
		var shade = new Shade(new Point(0, 0), onOtherSide ? Math.PI : 0, reach, [
			{at: 0, color: 0, alpha: 0.4 * upright},
			{at: 0.7, color: 0, alpha: 0.25 * upright},
			{at: 1, color: 0, alpha: 0}
		]);
		shade.fill(graphics, Outline.rectangle(onOtherSide ? -reach : 0, 0, reach, look.height), base);
	}
}
