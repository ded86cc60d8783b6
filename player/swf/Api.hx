import flash.external.ExternalInterface;
import flash.geom.Rectangle;

/** What the page around the movie can ask it. **/
class Api {
	static var book:Book;
	static var turner:Turner;
	static var slideshow:Slideshow;
	static var sounds:Sounds;
	static var state = "loading";
	static var message = "";

	/** Where the movie stands alone, there is nobody to ask. **/
	public static function offer() {
		try {
			ExternalInterface.addCallback("folveroState", tell);
			ExternalInterface.addCallback("folveroGoTo", (page:Int) -> if (book != null) turner.go(book.views.viewOf(page)));
		} catch (_:Dynamic) {}
	}

	public static function ready(book:Book, turner:Turner, slideshow:Slideshow, sounds:Sounds) {
		Api.book = book;
		Api.turner = turner;
		Api.slideshow = slideshow;
		Api.sounds = sounds;
		state = "ready";
	}

	public static function failed(error:BookError) {
		state = "error";
		message = error.title + ": " + error.detail;
	}

	static function tell():Dynamic {
		if (book == null)
			return {state: state, message: message};
		return {
			state: state,
			message: message,
			pages: book.views.pagesOf(turner.current),
			pageCount: book.views.pageCount,
			spread: book.layout.spread,
			turning: turner.turning,
			lifted: turner.leaf != null,
			playing: slideshow.running,
			sound: sounds.on,
			imagesKept: book.images.count,
			left: box(book.placeOf(true)),
			right: box(book.placeOf(false))
		};
	}

	static function box(place:Null<Rectangle>):Dynamic {
		return place == null ? null : {
			x: place.x,
			y: place.y,
			width: place.width,
			height: place.height
		};
	}
}
