import flash.utils.ByteArray;

typedef Ground = {from:Int, to:Int, angle:Float, file:String, position:String};

/** What the book's configuration says, read from its enciphered file. **/
class Config {
	static inline var KEY = "zq4mk2pw7rxv1bn8ty";

	public var pages(default, null):Array<String> = [];
	public var pageColor(default, null):Int;
	public var moveTime(default, null):Float;
	public var slideInterval(default, null):Float;
	public var rightToLeft(default, null):Bool;
	public var autoPlay(default, null):Bool;
	public var loopPlay(default, null):Bool;
	public var margins(default, null):{top:Float, bottom:Float, left:Float, right:Float};
	public var outer(default, null):Ground;
	public var inner(default, null):Ground;
	public var soundFile(default, null):String;
	public var soundLoops(default, null):Int;

	/** Throws a text when the bytes hold no configuration. **/
	public function new(enciphered:ByteArray) {
		var bytes = Rc4.run(enciphered, KEY);
		var text = bytes.readUTFBytes(bytes.length);
		text = text.substr(0, text.lastIndexOf(">") + 1);
		var root = Xml.parse(text).firstElement();
		if (root == null || root.nodeName != "SlidePowerPoint")
			throw "no configuration";
		readProperties(child(root, "Properties"));
		readBackground(child(root, "BackgroundConfig"));
		for (entry in child(root, "Ppts").elementsNamed("Ppt"))
			pages.push(textOf(child(entry, "Normal"), "ImgPath"));
		if (pages.length == 0)
			throw "no pages";
	}

	function readProperties(node:Xml) {
		pageColor = color(textOf(node, "PageBackgroundColor"), 0xffffff);
		moveTime = number(textOf(node, "PageMoveTime"), 1);
		slideInterval = number(textOf(node, "SlideInterval"), 1);
		rightToLeft = isYes(textOf(node, "RightToLeft"));
		autoPlay = isYes(textOf(node, "AutoPlay"));
		loopPlay = isYes(textOf(node, "LoopPlay"));
		margins = {
			top: number(textOf(node, "Top"), 10),
			bottom: number(textOf(node, "Bottom"), 10),
			left: number(textOf(node, "Left"), 10),
			right: number(textOf(node, "Right"), 10)
		};
	}

	function readBackground(node:Xml) {
		outer = readGround(node, "Outer");
		inner = readGround(node, "Inner");
		var sound = child(node, "BackgroundSound");
		soundFile = textOf(sound, "SoundFile");
		soundLoops = Std.int(number(textOf(sound, "SoundLoops"), -1));
	}

	static function readGround(node:Xml, which:String):Ground {
		var colors = child(node, "BackgroundColor");
		var image = child(node, "BackgroundImage");
		return {
			from: color(textOf(colors, which + "GradiantColorA"), 0xc0c0c0),
			to: color(textOf(colors, which + "GradiantColorB"), 0x808080),
			angle: number(textOf(colors, which + "GradiantAngle"), 90),
			file: textOf(image, which + "BackgroundFile"),
			position: textOf(image, which + "BackgroundPosition")
		};
	}

	static function child(node:Xml, name:String):Xml {
		var found = node.elementsNamed(name);
		return found.hasNext() ? found.next() : Xml.createElement(name);
	}

	static function textOf(node:Xml, name:String):String {
		var text = "";
		for (part in child(node, name))
			text += part.nodeValue;
		return StringTools.trim(StringTools.htmlUnescape(text));
	}

	static function isYes(text:String):Bool {
		return ["yes", "show", "enable", "true"].indexOf(text.toLowerCase()) >= 0;
	}

	static function number(text:String, fallback:Float):Float {
		var value = Std.parseFloat(text);
		return Math.isNaN(value) ? fallback : value;
	}

	static function color(text:String, fallback:Int):Int {
		var value = Std.parseInt(text);
		return value == null ? fallback : value & 0xffffff;
	}
}
