import flash.Lib;
import flash.display.Sprite;
import flash.display.StageAlign;
import flash.display.StageScaleMode;
import flash.events.Event;
import flash.events.IOErrorEvent;
import flash.events.SecurityErrorEvent;
import flash.geom.Rectangle;
import flash.net.URLLoader;
import flash.net.URLLoaderDataFormat;
import flash.net.URLRequest;

/** Opens the book beside the movie. **/
class Main {
	static function main() {
		var stage = Lib.current.stage;
		stage.scaleMode = StageScaleMode.NO_SCALE;
		stage.align = StageAlign.TOP_LEFT;
		Api.offer();
		var loader = new URLLoader();
		loader.dataFormat = URLLoaderDataFormat.BINARY;
		loader.addEventListener(Event.COMPLETE, _ -> {
			try {
				open(new Config(loader.data));
			} catch (error:BookError) {
				tell(error);
			}
		});
		loader.addEventListener(IOErrorEvent.IO_ERROR, _ -> tellIncomplete());
		loader.addEventListener(SecurityErrorEvent.SECURITY_ERROR, _ -> tellIncomplete());
		loader.load(new URLRequest("files/UserConfig.bin"));
	}

	/** The first picture gives the pages their shape, so the book is laid out once it is there. **/
	static function open(config:Config) {
		var outer = new Backdrop(config.outer, false);
		var inner = new Backdrop(config.inner, true);
		Lib.current.addChild(outer);
		Lib.current.addChild(inner);
		whenResized(() -> {
			outer.layOut(wholeStage());
			inner.layOut(table(config));
		});
		var book = new Book(config);
		var opened = false;
		book.onImage = page -> {
			if (page != 1 || opened)
				return;
			opened = true;
			begin(config, book);
		};
		book.images.get(1);
	}

	static function begin(config:Config, book:Book) {
		var stage = Lib.current.stage;
		var table = new Sprite();
		var turner = new Turner(book);
		var slideshow = new Slideshow(book, turner, stage);
		var sounds = new Sounds();
		var controls = new Controls(book, turner, slideshow, sounds);
		table.addChild(book);
		table.addChild(turner);
		Lib.current.addChild(table);
		Lib.current.addChild(controls);
		turner.onTurn = sounds.playTurn;
		turner.onLanded = () -> {
			controls.update();
			slideshow.wait();
		};
		book.onImage = _ -> turner.refresh();
		fit(config, book, turner, controls);
		new Gestures(book, turner, stage);
		Keys.listen(stage, book, turner);
		Opening.bringIn(table, config.initialShow);
		sounds.playMusic(config.soundFile, config.soundLoops);
		if (config.autoPlay)
			slideshow.run(true);
		Api.ready(book, turner, slideshow, sounds);
	}

	/** Keeps the page in view when the window changes between one page and two. **/
	static function fit(config:Config, book:Book, turner:Turner, controls:Controls) {
		whenResized(() -> {
			var page = book.views == null ? 1 : book.views.pagesOf(turner.current)[0];
			turner.halt();
			book.fitInto(table(config));
			turner.stand(book.views.viewOf(page));
			controls.layOut(table(config));
		});
	}

	static function whenResized(action:Void->Void) {
		Lib.current.stage.addEventListener(Event.RESIZE, _ -> action());
		action();
	}

	static function wholeStage():Rectangle {
		var stage = Lib.current.stage;
		return new Rectangle(0, 0, stage.stageWidth, stage.stageHeight);
	}

	static function table(config:Config):Rectangle {
		var stage = Lib.current.stage;
		return Layout.within(config.margins, stage.stageWidth, stage.stageHeight);
	}

	static function tellIncomplete() {
		tell(new BookError("This book is incomplete",
			"The folder \u201cfiles\u201d beside this movie holds the pages and the configuration of the book, but it could not be read. Keep the movie together with that folder."));
	}

	static function tell(error:BookError) {
		Api.failed(error);
		var message = new Message(error);
		Lib.current.addChild(message);
		whenResized(() -> message.layOut(Lib.current.stage.stageWidth, Lib.current.stage.stageHeight));
	}
}
