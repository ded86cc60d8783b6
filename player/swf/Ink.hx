/** Colours that can be read on a colour that the book's maker chose. **/
class Ink {
	public static inline final DARK = 0x1d2126;
	public static inline final LIGHT = 0xffffff;

	public static function on(ground:Int):Int {
		return luminance(ground) > 0.3 ? DARK : LIGHT;
	}

	/** Relative luminance, 0 (black) to 1 (white). **/
	public static function luminance(color:Int):Float {
		return 0.2126 * linear(color >> 16 & 255) + 0.7152 * linear(color >> 8 & 255) + 0.0722 * linear(color & 255);
	}

	static function linear(part:Int):Float {
		var share = part / 255;
		return share <= 0.04045 ? share / 12.92 : Math.pow((share + 0.055) / 1.055, 2.4);
	}
}
