import flash.display.Sprite;
import flash.geom.Rectangle;
import flash.text.TextField;
import flash.text.TextFieldAutoSize;
import flash.text.TextFormat;
import flash.text.TextFormatAlign;

/** Tells the reader on a card why there is no book to see. **/
class Message extends Sprite {
	static inline final WIDTH = 420;
	static inline final SIDE = 32;

	var cardHeight = 0.0;

	public function new(error:BookError) {
		super();
		cardHeight = SIDE - 4;
		append(error.title, 21, 0x2a2f36, true);
		cardHeight += 10;
		append(error.detail, 15, 0x59626d, false);
		cardHeight += SIDE;
		SoftShadow.beneath(graphics, new Rectangle(12, 20, WIDTH - 24, cardHeight - 28), 36, 0.22);
		graphics.beginFill(0xffffff);
		graphics.drawRoundRect(0, 0, WIDTH, cardHeight, 32, 32);
		graphics.endFill();
	}

	public function layOut(width:Float, height:Float) {
		scaleX = scaleY = Math.min(1, (width - 20) / WIDTH);
		x = Math.round((width - WIDTH * scaleX) / 2);
		y = Math.round(Math.max(10, height * 0.46 - cardHeight * scaleY / 2));
	}

	function append(words:String, size:Int, ink:Int, bold:Bool) {
		var field = new TextField();
		field.defaultTextFormat = new TextFormat("_sans", size, ink, bold, null, null, null, null, TextFormatAlign.CENTER);
		field.wordWrap = true;
		field.width = WIDTH - 2 * SIDE;
		field.x = SIDE;
		field.y = cardHeight;
		field.autoSize = TextFieldAutoSize.CENTER;
		field.text = words;
		cardHeight += field.height;
		addChild(field);
	}
}
