import flash.display.Bitmap;
import flash.display.BitmapData;
import flash.display.Loader;
import flash.events.Event;
import flash.events.IOErrorEvent;
import flash.events.SecurityErrorEvent;
import flash.geom.Matrix;
import flash.net.URLRequest;

enum ImageState {
	Loading;
	Ready;
	Missing;
}

/** The picture of one page. **/
class PageImage {
	public final page:Int;
	public var state(default, null) = Loading;
	public var width(default, null) = 0.0;
	public var height(default, null) = 0.0;

	final loader = new Loader();
	final onSettled:PageImage->Void;
	var picture:BitmapData;
	var reduced:BitmapData;

	public function new(page:Int, address:String, onSettled:PageImage->Void) {
		this.page = page;
		this.onSettled = onSettled;
		var info = loader.contentLoaderInfo;
		info.addEventListener(Event.COMPLETE, _ -> arrived());
		info.addEventListener(IOErrorEvent.IO_ERROR, _ -> settle(Missing));
		info.addEventListener(SecurityErrorEvent.SECURITY_ERROR, _ -> settle(Missing));
		loader.load(new URLRequest(address));
	}

	/** The picture, with about as many pixels as are shown so that nothing glitters. **/
	public function shownAt(width:Float):BitmapData {
		if (reduced == null || reduced.width < width || reduced.width >= 2 * width && reduced.width > 1) {
			forgetReduced();
			reduced = Reduction.of(picture, width);
		}
		return reduced;
	}

	public function drop() {
		forgetReduced();
		if (state == Loading)
			try {
				loader.close();
			} catch (_:Dynamic) {}
		loader.unload();
		if (picture != null)
			picture.dispose();
		picture = null;
		state = Missing;
	}

	function forgetReduced() {
		if (reduced != null && reduced != picture)
			reduced.dispose();
		reduced = null;
	}

	function arrived() {
		width = loader.contentLoaderInfo.width;
		height = loader.contentLoaderInfo.height;
		picture = Std.isOfType(loader.content, Bitmap) ? cast(loader.content, Bitmap).bitmapData : drawn();
		settle(picture != null && width > 0 && height > 0 ? Ready : Missing);
	}

	/** A page may also be a movie of its own. **/
	function drawn():BitmapData {
		var bitmap = new BitmapData(Math.ceil(2 * width), Math.ceil(2 * height), false);
		bitmap.draw(loader, new Matrix(2, 0, 0, 2));
		return bitmap;
	}

	function settle(state:ImageState) {
		this.state = state;
		onSettled(this);
	}
}
