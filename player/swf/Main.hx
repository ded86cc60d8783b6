import flash.Lib;
import flash.display.Sprite;
import flash.display.StageAlign;
import flash.display.StageScaleMode;
import flash.events.Event;
import flash.events.IOErrorEvent;
import flash.events.KeyboardEvent;
import flash.events.MouseEvent;
import flash.events.SecurityErrorEvent;
import flash.geom.Rectangle;
import flash.media.Sound;
import flash.net.URLLoader;
import flash.net.URLLoaderDataFormat;
import flash.net.URLRequest;
import flash.text.TextField;
import flash.text.TextFormat;
import flash.ui.Keyboard;
import flash.utils.ByteArray;

/** Opens the book beside the movie. **/
class Main {
	static final root = new Sprite();
	static var config:Config;
	static var book:Book;
	static var outer:Backdrop;
	static var inner:Backdrop;
	static var turnSound:Sound;
	static var landedAt = 0.0;

	static function main() {
		var stage = Lib.current.stage;
		stage.scaleMode = StageScaleMode.NO_SCALE;
		stage.align = StageAlign.TOP_LEFT;
		Lib.current.addChild(root);
		var loader = new URLLoader();
		loader.dataFormat = URLLoaderDataFormat.BINARY;
		loader.addEventListener(Event.COMPLETE, _ -> open(loader.data));
		loader.addEventListener(IOErrorEvent.IO_ERROR, _ -> tell("This book is incomplete: its configuration is missing."));
		loader.addEventListener(SecurityErrorEvent.SECURITY_ERROR, _ -> tell("The Flash Player may not read this book's files."));
		loader.load(new URLRequest("files/UserConfig.bin"));
	}

	static function open(enciphered:ByteArray) {
		try {
			config = new Config(enciphered);
		} catch (error:Dynamic) {
			tell("This book is damaged: its configuration could not be read.");
			return;
		}
		outer = new Backdrop(config.outer);
		inner = new Backdrop(config.inner);
		book = new Book(config);
		for (part in [outer, inner, book])
			root.addChild(part);
		turnSound = soundOf("extfiles/moveSound.mp3");
		book.onTurn = () -> turnSound.play();
		book.onLanded = () -> landedAt = Lib.getTimer();
		if (config.soundFile != "" && config.soundLoops != 0)
			soundOf(config.soundFile).play(0, config.soundLoops < 0 ? 0x7fffffff : config.soundLoops);
		listen();
		fit();
	}

	static function listen() {
		var stage = Lib.current.stage;
		stage.addEventListener(Event.RESIZE, _ -> fit());
		stage.addEventListener(MouseEvent.CLICK, event -> turnTo(event.stageX > stage.stageWidth / 2));
		stage.addEventListener(KeyboardEvent.KEY_DOWN, pressed);
		if (config.autoPlay)
			stage.addEventListener(Event.ENTER_FRAME, playOn);
	}

	static function turnTo(right:Bool) {
		book.step(right != config.rightToLeft ? 1 : -1);
	}

	static function pressed(event:KeyboardEvent) {
		switch event.keyCode {
			case Keyboard.RIGHT:
				turnTo(true);
			case Keyboard.LEFT:
				turnTo(false);
			case Keyboard.PAGE_DOWN, Keyboard.SPACE:
				book.step(1);
			case Keyboard.PAGE_UP:
				book.step(-1);
			case Keyboard.HOME:
				book.go(0);
			case Keyboard.END:
				book.go(book.viewCount - 1);
			default:
		}
	}

	static function playOn(_) {
		if (book.turning || Lib.getTimer() - landedAt < config.slideInterval * 1000)
			return;
		landedAt = Lib.getTimer();
		if (book.current < book.viewCount - 1)
			book.step(1);
		else if (config.loopPlay)
			book.go(0);
	}

	static function fit() {
		var stage = Lib.current.stage;
		var margins = config.margins;
		var area = new Rectangle(margins.left, margins.top, Math.max(80, stage.stageWidth - margins.left - margins.right),
			Math.max(80, stage.stageHeight - margins.top - margins.bottom));
		outer.layOut(new Rectangle(0, 0, stage.stageWidth, stage.stageHeight));
		inner.layOut(area);
		book.fitInto(area);
	}

	static function soundOf(path:String):Sound {
		var sound = new Sound();
		sound.addEventListener(IOErrorEvent.IO_ERROR, _ -> {});
		sound.load(new URLRequest("files/" + path));
		return sound;
	}

	static function tell(message:String) {
		var field = new TextField();
		field.defaultTextFormat = new TextFormat("_sans", 16, 0x2a2f36);
		field.width = Math.max(200, Lib.current.stage.stageWidth - 40);
		field.wordWrap = true;
		field.x = 20;
		field.y = 20;
		field.text = message;
		root.addChild(field);
	}
}
