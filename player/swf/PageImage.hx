import flash.display.Bitmap;
import flash.display.Loader;
import flash.display.Sprite;
import flash.events.Event;
import flash.events.IOErrorEvent;
import flash.net.URLRequest;
import flash.text.TextField;
import flash.text.TextFormat;

/** One page: its paper and, once loaded, its picture, fitted into the page. **/
class PageImage extends Sprite {
	public var pictureWidth(default, null) = 0.0;
	public var pictureHeight(default, null) = 0.0;

	final number:Int;
	final paper:Int;
	final loader = new Loader();
	final onSettled:Void->Void;
	var failed = false;

	public function new(number:Int, path:String, paper:Int, onSettled:Void->Void) {
		super();
		this.number = number;
		this.paper = paper;
		this.onSettled = onSettled;
		loader.contentLoaderInfo.addEventListener(Event.COMPLETE, loaded);
		loader.contentLoaderInfo.addEventListener(IOErrorEvent.IO_ERROR, notLoaded);
		loader.load(new URLRequest("files/" + path));
	}

	/** Draws the page with its binding at x = 0, to the right of it or to the left. **/
	public function layOut(width:Float, height:Float, toTheRight:Bool) {
		removeChildren();
		var left = toTheRight ? 0 : -width;
		graphics.clear();
		graphics.beginFill(paper);
		graphics.drawRect(left, 0, width, height);
		graphics.endFill();
		if (pictureWidth > 0) {
			var scale = Math.min(width / pictureWidth, height / pictureHeight);
			loader.scaleX = loader.scaleY = scale;
			loader.x = left + (width - pictureWidth * scale) / 2;
			loader.y = (height - pictureHeight * scale) / 2;
			addChild(loader);
		} else if (failed) {
			addChild(notice(left, width, height));
		}
		addChild(new Gutter(width, height, toTheRight));
	}

	function notice(left:Float, width:Float, height:Float):TextField {
		var field = new TextField();
		field.defaultTextFormat = new TextFormat("_sans", 14, 0x6c6c6c, null, null, null, null, null, CENTER);
		field.text = 'Page $number could not be shown';
		field.selectable = false;
		field.width = width;
		field.x = left;
		field.y = height / 2 - 10;
		return field;
	}

	function loaded(_) {
		pictureWidth = loader.contentLoaderInfo.width;
		pictureHeight = loader.contentLoaderInfo.height;
		if (Std.isOfType(loader.content, Bitmap))
			cast(loader.content, Bitmap).smoothing = true;
		onSettled();
	}

	function notLoaded(_) {
		failed = true;
		onSettled();
	}
}
