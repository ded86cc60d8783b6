import flash.display.Sprite;
import flash.geom.Rectangle;

/** Everything around the book that the reader can use: bar, thumbnails, caption. **/
class Controls extends Sprite {
	final caption:Caption;
	final thumbnails:Thumbnails;
	final bar:Bar;

	public function new(book:Book, turner:Turner, slideshow:Slideshow, sounds:Sounds) {
		super();
		caption = new Caption(book.config.caption);
		thumbnails = new Thumbnails(book, turner);
		bar = new Bar(book, turner, slideshow, sounds, thumbnails);
		addChild(caption);
		if (book.config.hideBar)
			return;
		addChild(thumbnails);
		addChild(bar);
	}

	public function update() {
		bar.update();
		thumbnails.update();
	}

	public function layOut(area:Rectangle) {
		caption.layOut(area);
		bar.layOut(area);
		thumbnails.layOut(area);
	}
}
