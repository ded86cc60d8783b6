import flash.display.Sprite;
import flash.events.MouseEvent;

/** A round button with a sign. **/
class BarButton extends Sprite {
	public static inline final WIDTH = 38;
	public static inline final HEIGHT = 36;

	public var sign(default, set):Array<Array<Float>>;

	/** A button that can do nothing now is faint and takes no clicks. **/
	public var enabled(default, set) = true;

	final ink:Int;
	var hovered = false;

	public function new(sign:Array<Array<Float>>, ink:Int, action:Void->Void) {
		super();
		this.ink = ink;
		this.sign = sign;
		buttonMode = true;
		addEventListener(MouseEvent.CLICK, _ -> if (enabled) action());
		addEventListener(MouseEvent.ROLL_OVER, _ -> hover(true));
		addEventListener(MouseEvent.ROLL_OUT, _ -> hover(false));
	}

	function set_sign(value:Array<Array<Float>>):Array<Array<Float>> {
		sign = value;
		paint();
		return value;
	}

	function set_enabled(value:Bool):Bool {
		enabled = buttonMode = value;
		paint();
		return value;
	}

	function hover(hovered:Bool) {
		this.hovered = hovered;
		paint();
	}

	function paint() {
		graphics.clear();
		graphics.beginFill(ink, hovered && enabled ? 0.14 : 0);
		graphics.drawRoundRect(0, 0, WIDTH, HEIGHT, HEIGHT, HEIGHT);
		graphics.endFill();
		Signs.draw(graphics, sign, ink, WIDTH / 2, HEIGHT / 2);
		alpha = enabled ? 1 : 0.32;
	}
}
