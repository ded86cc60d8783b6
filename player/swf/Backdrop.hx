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
	/** Positions at which a picture keeps its size. **/
	static final OWN_SIZE = ["tile", "center", "top left", "top right", "bottom left", "bottom right"];

	/** Diameter of the table's corners where its margins leave room for round ones. **/
	static inline final ROUNDNESS = 20;

	final ground:Ground;
	final isTable:Bool;
	var picture:BitmapData;
	var area = new Rectangle();

	/** @param isTable lies in the window with round corners, and light falls on it **/
	public function new(ground:Ground, isTable:Bool) {
		super();
		this.ground = ground;
		this.isTable = isTable;
		mouseEnabled = false;
		if (ground.file != "")
			load();
	}

	public function layOut(area:Rectangle) {
		this.area = area;
		graphics.clear();
		if (isTable)
			SoftShadow.beneath(graphics, new Rectangle(area.x + 4, area.y + 6, area.width - 8, area.height - 8), 16, 0.24);
		paintGradient(GradientType.LINEAR, [ground.from, ground.to], [1, 1], gradientBox());
		if (picture != null)
			paintPicture();
		if (isTable)
			paintLight();
	}

	/** A picture that cannot be loaded leaves the gradient to be seen. **/
	function load() {
		var loader = new Loader();
		loader.contentLoaderInfo.addEventListener(Event.COMPLETE, _ -> {
			if (!Std.isOfType(loader.content, Bitmap))
				return;
			picture = cast(loader.content, Bitmap).bitmapData;
			layOut(area);
		});
		loader.contentLoaderInfo.addEventListener(IOErrorEvent.IO_ERROR, _ -> {});
		loader.load(new URLRequest(ground.file));
	}

	/** As long as the area is in the gradient's direction, so that both colours reach its corners. **/
	function gradientBox():Matrix {
		var angle = ground.angle * Math.PI / 180;
		var length = Math.abs(area.width * Math.cos(angle)) + Math.abs(area.height * Math.sin(angle));
		var matrix = new Matrix();
		matrix.createGradientBox(length, length, angle, area.x + (area.width - length) / 2, area.y + (area.height - length) / 2);
		return matrix;
	}

	/** Light from above falls on the middle and fades towards the corners. **/
	function paintLight() {
		var light = new Matrix();
		light.createGradientBox(area.width * 1.1, area.height * 0.9, 0, area.x - area.width * 0.05, area.y - area.height * 0.1);
		paintGradient(GradientType.RADIAL, [0xffffff, 0xffffff], [0.2, 0], light);
		var dusk = new Matrix();
		dusk.createGradientBox(area.width * 1.9, area.height * 1.9, 0, area.x - area.width * 0.45, area.y - area.height * 0.5);
		paintGradient(GradientType.RADIAL, [0, 0, 0], [0, 0, 0.18], dusk, [0, 140, 255]);
	}

	function paintGradient(kind:GradientType, colors:Array<UInt>, alphas:Array<Float>, matrix:Matrix, ?ratios:Array<Int>) {
		graphics.beginGradientFill(kind, colors, alphas, ratios == null ? [0, 255] : ratios, matrix);
		outline(area);
		graphics.endFill();
	}

	function outline(shown:Rectangle) {
		var round = isTable && shown.equals(area) ? Math.min(ROUNDNESS, 2 * Math.min(area.x, area.y)) : 0;
		graphics.drawRoundRect(shown.x, shown.y, shown.width, shown.height, round, round);
	}

	function paintPicture() {
		var place = placeOfPicture();
		var matrix = new Matrix(place.width / picture.width, 0, 0, place.height / picture.height, place.x, place.y);
		var isTile = ground.position == "tile";
		graphics.beginBitmapFill(picture, matrix, isTile, true);
		outline(isTile ? area : area.intersection(place));
		graphics.endFill();
	}

	function placeOfPicture():Rectangle {
		var position = ground.position;
		var across = area.width / picture.width;
		var down = area.height / picture.height;
		var scale = switch position {
			case "fill": Math.max(across, down);
			case "fit": Math.min(across, down);
			default: 1;
		};
		var stretched = position != "fill" && position != "fit" && !OWN_SIZE.contains(position);
		var width = stretched ? area.width : picture.width * scale;
		var height = stretched ? area.height : picture.height * scale;
		var atLeft = position == "tile" || StringTools.endsWith(position, "left");
		var atTop = position == "tile" || StringTools.startsWith(position, "top");
		var shareX = atLeft ? 0 : StringTools.endsWith(position, "right") ? 1 : 0.5;
		var shareY = atTop ? 0 : StringTools.startsWith(position, "bottom") ? 1 : 0.5;
		return new Rectangle(area.x + (area.width - width) * shareX, area.y + (area.height - height) * shareY, width, height);
	}
}
