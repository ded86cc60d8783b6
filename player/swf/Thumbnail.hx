import flash.display.Shape;
import flash.display.Sprite;
import flash.events.MouseEvent;
import flash.geom.Matrix;
import flash.text.TextField;
import flash.text.TextFormat;
import flash.text.TextFormatAlign;

/** A small page in the strip of thumbnails, with its number. **/
class Thumbnail extends Sprite {
	public static inline final LABEL_HEIGHT = 20;

	public final page:Int;

	final image:PageImage;
	final print = new Shape();
	final boxWidth:Float;
	final boxHeight:Float;
	final config:Config;

	public function new(page:Int, config:Config, width:Float, height:Float, action:Void->Void) {
		super();
		this.page = page;
		this.config = config;
		boxWidth = width;
		boxHeight = height;
		addChild(print);
		addChild(label());
		buttonMode = true;
		mouseChildren = false;
		addEventListener(MouseEvent.CLICK, _ -> action());
		image = new PageImage(page, config.pages[page - 1], _ -> paint());
		paint();
	}

	/** Frames the page that the reader sees. **/
	public function mark(isInView:Bool) {
		graphics.clear();
		if (!isInView)
			return;
		graphics.lineStyle(2, Ink.on(config.thumbnailsColor));
		graphics.drawRect(-3, -3, boxWidth + 6, boxHeight + 6);
	}

	public function drop() {
		image.drop();
	}

	function paint() {
		var graphics = print.graphics;
		graphics.clear();
		var face = new Face(image, boxWidth, boxHeight, config.pageColor, false);
		face.paint(graphics, Outline.rectangle(0, 0, boxWidth, boxHeight), new Matrix(), false);
	}

	function label():TextField {
		var ink = Ink.on(config.thumbnailsColor);
		var field = new TextField();
		field.defaultTextFormat = new TextFormat("_sans", 12, ink, null, null, null, null, null, TextFormatAlign.CENTER);
		field.selectable = false;
		field.text = Std.string(page);
		field.x = -10;
		field.y = boxHeight + 3;
		field.width = boxWidth + 20;
		field.height = LABEL_HEIGHT;
		return field;
	}
}
