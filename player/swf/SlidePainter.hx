import LeafPainter.Look;
import flash.display.Graphics;
import flash.geom.Matrix;
import flash.geom.Point;

/**
	Flat pages. A single page slides aside, off the one beneath it; where two lie side by side, an edge
	sweeps over both and leaves the new ones behind.
**/
class SlidePainter implements LeafPainter {
	/** Width of the shadow along the edge that moves. **/
	static inline final SHADOW = 28;

	/** How far a single page goes while it fades, in widths of a page. **/
	static inline final TRAVEL = 0.75;

	public function new() {}

	public function draw(graphics:Graphics, look:Look, held:Point, edge:Point) {
		var base = new Matrix(look.mirrored ? -1 : 1);
		var sheet = Outline.rectangle(0, 0, look.width, look.height);
		var at = Math.max(-look.width, Math.min(look.width, held.x));
		if (look.spread) {
			look.front.paint(graphics, Outline.between(sheet, 0, at), base, look.mirrored);
			var turned = new Matrix(-1);
			turned.concat(base);
			look.back.paint(graphics, Outline.between(sheet, 0, -at), turned, !look.mirrored);
			shade(graphics, at, at > 0 ? look.width : 0, look.height, base);
			return;
		}
		var away = (at - look.width) / 2 * TRAVEL;
		var map = new Matrix(1, 0, 0, 1, away, 0);
		map.concat(base);
		look.front.paint(graphics, sheet, map, look.mirrored);
		shade(graphics, look.width + away, look.width, look.height, base);
	}

	/** The shadow of the moving edge on what lies beyond it, as far as the page there reaches. **/
	function shade(graphics:Graphics, from:Float, end:Float, height:Float, base:Matrix) {
		var reach = Math.min(SHADOW, end - from);
		if (reach <= 0)
			return;
		var shadow = new Shade(new Point(from, 0), 0, SHADOW, [{at: 0, color: 0, alpha: 0.3}, {at: 1, color: 0, alpha: 0}]);
		shadow.fill(graphics, Outline.rectangle(from, 0, reach, height), base);
	}
}
