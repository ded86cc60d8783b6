import flash.display.Graphics;
import flash.geom.Point;

/** What there is to see of a leaf in the air. **/
typedef Look = {
	front:Face,
	back:Face,
	width:Float,
	height:Float,
	/** Bound at its right edge. **/
	mirrored:Bool,
	/** A page lies beneath the leaf. **/
	overPage:Bool,
	/** Two pages lie side by side. **/
	spread:Bool
}

/** Draws a leaf that is turned, bound at the origin. **/
interface LeafPainter {
	/**
		@param held where the grabbed point of the edge is now
		@param edge where it lies in the flat leaf
	**/
	function draw(graphics:Graphics, look:Look, held:Point, edge:Point):Void;
}
