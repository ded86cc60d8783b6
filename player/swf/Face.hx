import Shade.Step;
import flash.display.Graphics;
import flash.geom.Matrix;
import flash.geom.Point;
import flash.geom.Rectangle;

/**
	One side of a leaf. Its coordinates are those of a leaf bound at x = 0: the left edge of what is
	printed lies at x = 0, or, flipped, at x = width.
**/
class Face {
	/** Darkening of a page towards its binding, over this share of its width. **/
	static inline final GUTTER_REACH = 0.16;

	static final GUTTER:Array<Step> = [
		{at: 0, color: 0, alpha: 0.26},
		{at: 0.075, color: 0, alpha: 0.16},
		{at: 0.25, color: 0, alpha: 0.075},
		{at: 0.56, color: 0, alpha: 0.03},
		{at: 1, color: 0, alpha: 0}
	];

	/** How much of the print of a single page is seen on its back. **/
	static inline final SHOWING_THROUGH = 0.14;

	public final width:Float;
	public final height:Float;

	final image:Null<PageImage>;
	final paper:Int;
	final gutter:Null<Shade>;
	final isBackOfSingle:Bool;

	/**
		@param image none for a page that does not exist
		@param isBackOfSingle the image is printed on the other side and seen through the paper
	**/
	public function new(image:Null<PageImage>, width:Float, height:Float, paper:Int, bound:Bool, isBackOfSingle = false) {
		this.image = image;
		this.width = width;
		this.height = height;
		this.paper = paper;
		this.isBackOfSingle = isBackOfSingle;
		gutter = bound ? new Shade(new Point(0, 0), 0, width * GUTTER_REACH, GUTTER) : null;
	}

	/** Paints the part of the face inside an outline, moved by a matrix. **/
	public function paint(graphics:Graphics, outline:Array<Point>, map:Matrix, flipped:Bool) {
		if (outline.length < 3)
			return;
		var place = image != null && image.state == Ready ? fitted(image.width, image.height, width, height) : null;
		if (place == null || place.width < width || place.height < height)
			fill(graphics, outline, map, 1);
		if (place != null)
			paintPicture(graphics, outline, map, flipped != isBackOfSingle, place);
		if (isBackOfSingle && place != null)
			fill(graphics, outline, map, 1 - SHOWING_THROUGH);
		if (gutter != null)
			gutter.fill(graphics, Outline.between(outline, 0, width * GUTTER_REACH), map);
	}

	/** Where a picture lies in a page: whole, in the middle, as large as possible. **/
	public static function fitted(pictureWidth:Float, pictureHeight:Float, width:Float, height:Float):Rectangle {
		var scale = Math.min(width / pictureWidth, height / pictureHeight);
		var w = snapped(pictureWidth * scale, width);
		var h = snapped(pictureHeight * scale, height);
		return new Rectangle((width - w) / 2, (height - h) / 2, w, h);
	}

	/** A hair's breadth of paper at a page's edge looks like a fault; stretch it away. **/
	static function snapped(part:Float, whole:Float):Float {
		return whole - part < whole * 0.006 ? whole : part;
	}

	function fill(graphics:Graphics, outline:Array<Point>, map:Matrix, alpha:Float) {
		graphics.beginFill(paper, alpha);
		Outline.draw(graphics, outline, map);
		graphics.endFill();
	}

	function paintPicture(graphics:Graphics, outline:Array<Point>, map:Matrix, flipped:Bool, place:Rectangle) {
		var bitmap = image.shownAt(place.width * Screen.density);
		var matrix = new Matrix(place.width / bitmap.width, 0, 0, place.height / bitmap.height, place.x, place.y);
		if (flipped)
			matrix.concat(new Matrix(-1, 0, 0, 1, width, 0));
		matrix.concat(map);
		var inside = Outline.betweenLevels(Outline.between(outline, place.left, place.right), place.top, place.bottom);
		graphics.beginBitmapFill(bitmap, matrix, false, true);
		Outline.draw(graphics, inside, map);
		graphics.endFill();
	}
}
