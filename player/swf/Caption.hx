import flash.Lib;
import flash.display.Sprite;
import flash.events.MouseEvent;
import flash.geom.Rectangle;
import flash.net.URLRequest;
import flash.text.TextField;
import flash.text.TextFieldAutoSize;
import flash.text.TextFormat;

/** The text in the lower left corner; an address of the web, for mail or of a telephone opens. **/
class Caption extends Sprite {
	final shadow:TextField;
	final text:TextField;

	public function new(caption:String) {
		super();
		var isLink = Address.mayFollow(caption);
		var words = isLink ? ~/^https?:\/\/|^(mailto|tel):|\/$/gi.replace(caption, "") : caption;
		shadow = line(words, 0x000000);
		text = line(words, 0xffffff);
		shadow.x = shadow.y = 1;
		shadow.alpha = 0.6;
		mouseChildren = false;
		mouseEnabled = buttonMode = isLink;
		if (!isLink)
			return;
		addEventListener(MouseEvent.MOUSE_DOWN, event -> event.stopPropagation());
		addEventListener(MouseEvent.CLICK, _ -> Lib.getURL(new URLRequest(caption), "_blank"));
	}

	/** There is no room for it beside the bar in a narrow window. **/
	public function layOut(area:Rectangle) {
		visible = area.width > 740;
		x = area.x + 18;
		y = area.bottom - 20 - 22;
		scrollRect = new Rectangle(0, 0, Math.min(text.width + 2, area.width * 0.26), 24);
	}

	function line(words:String, ink:Int):TextField {
		var field = new TextField();
		field.defaultTextFormat = new TextFormat("_sans", 13, ink);
		field.autoSize = TextFieldAutoSize.LEFT;
		field.selectable = false;
		field.text = words;
		addChild(field);
		return field;
	}
}
