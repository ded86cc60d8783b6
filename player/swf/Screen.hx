import flash.Lib;

/** The screen on which the movie is shown. **/
class Screen {
	/** Pixels of the screen by pixel of the movie. **/
	public static var density(get, never):Float;

	static function get_density():Float {
		return Math.max(1, Math.min(2, Lib.current.stage.contentsScaleFactor));
	}
}
