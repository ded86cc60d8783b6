import Config.Margins;
import flash.geom.Rectangle;

/** Where the book lies in the window. **/
class Layout {
	/** Room kept for the bar under the book. **/
	static inline final BAR_ROOM = 64;

	public final spread:Bool;
	public final pageWidth:Float;
	public final pageHeight:Float;

	/** Left edge of the book, of both pages in spread mode. **/
	public final left:Float;

	public final top:Float;
	public final spineX:Float;

	/** @param aspect width of a page by its height **/
	public function new(area:Rectangle, aspect:Float, config:Config) {
		spread = !Options.SINGLE_PAGES && config.pages.length > 1 && area.width >= 560 && area.width > area.height * 1.05;
		var roomy = Math.min(area.width, area.height) >= 480;
		var air = roomy ? Math.round(Math.min(area.width, area.height) * 0.045) : 10;
		var below = config.hideBar ? air : BAR_ROOM;
		var sides = spread && roomy ? Math.max(air, 40) : air;
		var mostWidth = Math.max(40, (area.width - 2 * sides) / (spread ? 2 : 1));
		var mostHeight = Math.max(40, area.height - air - below);
		var width = Math.min(mostWidth, mostHeight * aspect);
		pageWidth = Math.round(width);
		pageHeight = Math.round(width / aspect);
		left = Math.round(area.x + (area.width - bookWidth) / 2);
		var spare = area.height - pageHeight;
		top = Math.round(area.y + Math.max(air, Math.min(spare / 2, spare - below)));
		spineX = left + (spread || config.rightToLeft ? pageWidth : 0);
	}

	public var bookWidth(get, never):Float;

	function get_bookWidth():Float {
		return pageWidth * (spread ? 2 : 1);
	}

	/** Area inside the margins; on a small screen a margin made for a large one would eat the page. **/
	public static function within(margins:Margins, width:Float, height:Float):Rectangle {
		var most = Math.min(width, height) < 600 ? 0.02 : 0.2;
		var left = Math.round(Math.min(margins.left, width * most));
		var top = Math.round(Math.min(margins.top, height * most));
		var right = Math.round(Math.min(margins.right, width * most));
		var bottom = Math.round(Math.min(margins.bottom, height * most));
		return new Rectangle(left, top, Math.max(40, width - left - right), Math.max(40, height - top - bottom));
	}
}
