import flash.utils.ByteArray;

typedef Ground = {from:Int, to:Int, angle:Float, file:String, position:String};
typedef Margins = {top:Float, bottom:Float, left:Float, right:Float};

/** What the book's configuration says, read from its enciphered file. **/
class Config {
	static inline final KEY = "zq4mk2pw7rxv1bn8ty";

	/** Addresses of the pages' pictures, relative to the movie. **/
	public final pages:Array<String>;

	public final margins:Margins;
	public final initialShow:String;
	public final windowColor:Int;
	public final thumbnailsColor:Int;
	public final pageColor:Int;
	public final caption:String;
	public final hideBar:Bool;

	/** Seconds. **/
	public final riseTime:Float;

	public final moveTime:Float;
	public final slideInterval:Float;
	public final rightToLeft:Bool;
	public final autoPlay:Bool;
	public final loopPlay:Bool;
	public final outer:Ground;
	public final inner:Ground;

	/** Address of the background sound, empty for none. **/
	public final soundFile:String;

	/** How often it is played; below 0: on and on. **/
	public final soundLoops:Int;

	/** Throws a BookError when the bytes hold no configuration. **/
	public function new(enciphered:ByteArray) {
		var root = parse(enciphered);
		var properties = child(root, "Properties");
		margins = {
			top: number(properties, "Top", 10, 0, 400),
			bottom: number(properties, "Bottom", 10, 0, 400),
			left: number(properties, "Left", 10, 0, 400),
			right: number(properties, "Right", 10, 0, 400)
		};
		initialShow = textOf(properties, "InitialShow");
		windowColor = color(properties, "FlashWindowsColor", 0xffffff);
		thumbnailsColor = color(properties, "ThumbnailsBgColor", windowColor);
		pageColor = color(properties, "PageBackgroundColor", 0xffffff);
		caption = textOf(properties, "TutorialTitle");
		hideBar = isYes(properties, "HidePageFrameBar");
		riseTime = number(properties, "PageRiseOrFallTime", 0.5, 0.05, 5);
		moveTime = number(properties, "PageMoveTime", 1, 0.1, 10);
		slideInterval = number(properties, "SlideInterval", 1, 0.2, 3600);
		rightToLeft = isYes(properties, "RightToLeft");
		autoPlay = isYes(properties, "AutoPlay");
		loopPlay = isYes(properties, "LoopPlay");
		var background = child(root, "BackgroundConfig");
		outer = ground(background, "Outer", 0xc0c0c0, 0x808080);
		inner = ground(background, "Inner", 0xa3cfd1, 0x408080);
		var sound = child(background, "BackgroundSound");
		soundFile = Address.ofFile(textOf(sound, "SoundFile"));
		soundLoops = Std.int(number(sound, "SoundLoops", -1, -1, 10000));
		pages = [
			for (page in child(root, "Ppts").elementsNamed("Ppt"))
				Address.ofFile(textOf(child(page, "Normal"), "ImgPath"))
		];
		if (pages.length == 0)
			throw new BookError("This book has no pages", "Nothing was published into it.");
	}

	static function parse(enciphered:ByteArray):Xml {
		var bytes = Rc4.run(enciphered, KEY);
		var text = bytes.readUTFBytes(bytes.length);
		var root:Xml = null;
		try {
			root = Xml.parse(text.substr(0, text.lastIndexOf(">") + 1)).firstElement();
		} catch (_:Dynamic) {}
		if (root == null || root.nodeName != "SlidePowerPoint")
			throw new BookError("This book is damaged",
				"Its configuration could not be read, so the pages cannot be shown. Publishing or copying the book again should help.");
		return root;
	}

	static function ground(node:Xml, which:String, from:Int, to:Int):Ground {
		var colors = child(node, "BackgroundColor");
		var image = child(node, "BackgroundImage");
		return {
			from: color(colors, which + "GradiantColorA", from),
			to: color(colors, which + "GradiantColorB", to),
			angle: number(colors, which + "GradiantAngle", 90, -3600, 3600),
			file: Address.ofFile(textOf(image, which + "BackgroundFile")),
			position: textOf(image, which + "BackgroundPosition").toLowerCase()
		};
	}

	static function child(node:Xml, name:String):Xml {
		var found = node.elementsNamed(name);
		return found.hasNext() ? found.next() : Xml.createElement(name);
	}

	static function textOf(node:Xml, name:String):String {
		var text = "";
		for (part in child(node, name))
			if (part.nodeType == PCData || part.nodeType == CData)
				text += part.nodeValue;
		return StringTools.trim(text);
	}

	static function isYes(node:Xml, name:String):Bool {
		return ["yes", "show", "enable", "true"].contains(textOf(node, name).toLowerCase());
	}

	static function number(node:Xml, name:String, fallback:Float, least:Float, most:Float):Float {
		var value = Std.parseFloat(textOf(node, name));
		return Math.isNaN(value) ? fallback : Math.min(most, Math.max(least, value));
	}

	/** 0xRRGGBB; an alpha byte in front is dropped. **/
	static function color(node:Xml, name:String, fallback:Int):Int {
		var value = Std.parseInt(textOf(node, name));
		return value == null ? fallback : value & 0xffffff;
	}
}
