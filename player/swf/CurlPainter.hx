import LeafPainter.Look;
import Shade.Step;
import flash.display.Graphics;
import flash.geom.Matrix;
import flash.geom.Point;

/** Paper that rolls over a fold line, with light and shadow along it. **/
class CurlPainter implements LeafPainter {
	/** Strips that each quarter of the roll is drawn in. **/
	static inline final STRIPS = 10;

	/** Straight pieces that each edge of the shadow's outline is drawn in. **/
	static inline final EDGE_STEPS = 8;

	static inline final BLACK = 0x000000;
	static inline final WHITE = 0xffffff;

	static final FRONT:Array<Step> = [
		{at: 0, color: WHITE, alpha: 0},
		{at: 0.35, color: WHITE, alpha: 0.1},
		{at: 0.6, color: BLACK, alpha: 0.04},
		{at: 0.85, color: BLACK, alpha: 0.2},
		{at: 1, color: BLACK, alpha: 0.42}
	];

	static final BACK:Array<Step> = [
		{at: 0, color: BLACK, alpha: 0.3},
		{at: 0.1, color: BLACK, alpha: 0.12},
		{at: 0.16, color: WHITE, alpha: 0.06},
		{at: 0.22, color: WHITE, alpha: 0.28},
		{at: 0.36, color: WHITE, alpha: 0.08},
		{at: 0.5, color: BLACK, alpha: 0.05},
		{at: 1, color: BLACK, alpha: 0}
	];

	var graphics:Graphics;
	var look:Look;
	var fold:Fold;
	var sheet:Array<Point>;
	var base:Matrix;

	public function new() {}

	public function draw(graphics:Graphics, look:Look, held:Point, edge:Point) {
		this.graphics = graphics;
		this.look = look;
		fold = Fold.of(held, edge, look.width, look.height);
		sheet = Outline.rectangle(0, 0, look.width, look.height);
		base = new Matrix(look.mirrored ? -1 : 1);
		if (fold == null)
			look.front.paint(graphics, sheet, base, look.mirrored);
		else
			drawFolded(Fold.turnedShare(held, look.width));
	}

	function drawFolded(share:Float) {
		var quarter = Math.PI / 2 * fold.radius;
		var far = 2 * (look.width + look.height);
		if (look.overPage)
			shadeBeneath(share);
		strip(-far, -quarter, look.front, false, null);
		roll(-quarter, look.front, false, fold.shade(-quarter, 0, FRONT));
		castShadow(share);
		var light = fold.shade(0, quarter * 2.6, BACK);
		roll(0, look.back, true, light);
		strip(quarter, far, look.back, true, light);
	}

	/** One quarter of the roll, from a distance onwards. **/
	function roll(from:Float, face:Face, isBack:Bool, shade:Shade) {
		var step = Math.PI / 2 * fold.radius / STRIPS;
		if (step >= 0.02)
			for (index in 0...STRIPS)
				strip(from + index * step, from + (index + 1) * step, face, isBack, shade);
	}

	/** The paper between two distances from the fold line, as seen from above. **/
	function strip(from:Float, to:Float, face:Face, isBack:Bool, shade:Null<Shade>) {
		var seenFrom = fold.seenAt(from);
		var scale = (fold.seenAt(to) - seenFrom) / (to - from);
		if (Math.abs(scale) < 0.001)
			return;
		var overlap = Math.min(3, 0.6 / Math.abs(scale));
		var outline = fold.between(sheet, from - overlap, to + overlap);
		var map = new Matrix(1, 0, 0, 1, -fold.middle.x, -fold.middle.y);
		map.rotate(-fold.angle);
		map.translate(-from, 0);
		map.scale(scale, 1);
		map.translate(seenFrom, 0);
		map.rotate(fold.angle);
		map.translate(fold.middle.x, fold.middle.y);
		map.concat(base);
		face.paint(graphics, outline, map, look.mirrored != isBack);
		if (shade != null)
			shade.fill(graphics, outline, map);
	}

	/** The shadow of the roll on the page that comes to light. **/
	function shadeBeneath(share:Float) {
		var front = fold.seenAt(0);
		var reach = front + Math.min(look.width * 0.35, fold.radius * 3.2 + 4);
		var strength = 0.5 * Math.min(1, 4 * share) * (1 - share * 0.6);
		var shade = fold.shade(front - 1, reach, [
			{at: 0, color: BLACK, alpha: strength},
			{at: 0.18, color: BLACK, alpha: strength * 0.55},
			{at: 0.5, color: BLACK, alpha: strength * 0.18},
			{at: 1, color: BLACK, alpha: 0}
		]);
		shade.fill(graphics, fold.between(sheet, front - 1, reach), base);
	}

	/** The shadow of the paper that has come over, on everything that it comes over. **/
	function castShadow(share:Float) {
		var outline = turnedOutline();
		if (outline.length < 3)
			return;
		var lift = Math.sin(Math.PI * share);
		SoftShadow.around(graphics, outline, base, 4 + 26 * lift, 0.14 + 0.3 * lift);
	}

	/** Outline of the part beyond the fold line, as seen from above. **/
	function turnedOutline():Array<Point> {
		var flat = fold.between(sheet, 0, 2 * (look.width + look.height));
		var outline = [];
		for (index => point in flat) {
			var next = flat[(index + 1) % flat.length];
			for (step in 0...EDGE_STEPS) {
				var part = step / EDGE_STEPS;
				var x = point.x + (next.x - point.x) * part;
				var y = point.y + (next.y - point.y) * part;
				var u = fold.beyond(new Point(x, y));
				var shift = fold.seenAt(u) - u;
				outline.push(new Point(x + fold.alongX * shift, y + fold.alongY * shift));
			}
		}
		return outline;
	}
}
