import Config.Ground;
import flash.display.Bitmap;
import flash.display.BitmapData;
import flash.display.GradientType;
import flash.display.Loader;
import flash.display.Sprite;
import flash.events.Event;
import flash.events.IOErrorEvent;
import flash.geom.Matrix;
import flash.geom.Rectangle;
import flash.net.URLRequest;

/** One of the two grounds: its picture over its gradient. **/
class Backdrop extends Sprite {
	final ground:Ground;
	var picture:BitmapData;
	var area = new Rectangle();

	public function new(ground:Ground) {
		super();
		this.ground = ground;
		if (ground.file == "")
			return;
		var loader = new Loader();
		loader.contentLoaderInfo.addEventListener(Event.COMPLETE, function(_) {
			if (Std.isOfType(loader.content, Bitmap))
				picture = cast(loader.content, Bitmap).bitmapData;
			layOut(area);
		});
		loader.contentLoaderInfo.addEventListener(IOErrorEvent.IO_ERROR, function(_) {});
		loader.load(new URLRequest("files/" + ground.file));
	}

	public function layOut(area:Rectangle) {
		this.area = area;
		graphics.clear();
		var matrix = new Matrix();
		matrix.createGradientBox(area.width, area.height, ground.angle * Math.PI / 180, area.x, area.y);
		graphics.beginGradientFill(GradientType.LINEAR, [ground.from, ground.to], [1, 1], [0, 255], matrix);
		graphics.drawRect(area.x, area.y, area.width, area.height);
		graphics.endFill();
		if (picture != null)
			drawPicture();
	}

	function drawPicture() {
		var position = ground.position.toLowerCase();
		var across = area.width / picture.width;
		var down = area.height / picture.height;
		var scale = switch position {
			case "fill": Math.max(across, down);
			case "fit": Math.min(across, down);
			default: 1;
		};
		var stretched = ["fill", "fit", "tile", "center", "top left", "top right", "bottom left", "bottom right"]
			.indexOf(position) < 0;
		var width = stretched ? area.width : picture.width * scale;
		var height = stretched ? area.height : picture.height * scale;
		var atLeft = position == "tile" || StringTools.endsWith(position, "left");
		var atRight = StringTools.endsWith(position, "right");
		var atTop = position == "tile" || StringTools.startsWith(position, "top");
		var atBottom = StringTools.startsWith(position, "bottom");
		var x = area.x + (area.width - width) * (atLeft ? 0 : atRight ? 1 : 0.5);
		var y = area.y + (area.height - height) * (atTop ? 0 : atBottom ? 1 : 0.5);
		var matrix = new Matrix(width / picture.width, 0, 0, height / picture.height, x, y);
		var shown = position == "tile" ? area : area.intersection(new Rectangle(x, y, width, height));
		graphics.beginBitmapFill(picture, matrix, position == "tile", true);
		graphics.drawRect(shown.x, shown.y, shown.width, shown.height);
		graphics.endFill();
	}
}
