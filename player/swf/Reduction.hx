import flash.display.BitmapData;
import flash.geom.Matrix;

/**
	Makes large pictures smaller by halving them. A fill that leaves out most of a picture's pixels
	shows jagged letters.
**/
class Reduction {
	static var possible:Null<Bool>;

	/** The picture, or a copy of less than twice the wanted width. **/
	public static function of(picture:BitmapData, width:Float):BitmapData {
		var smaller = picture;
		while (smaller.width >= 2 * width && smaller.height > 1 && canDraw()) {
			var half = halved(smaller);
			if (smaller != picture)
				smaller.dispose();
			smaller = half;
		}
		return smaller;
	}

	static function halved(picture:BitmapData):BitmapData {
		var half = new BitmapData(Math.ceil(picture.width / 2), Math.ceil(picture.height / 2), false);
		half.draw(picture, new Matrix(half.width / picture.width, 0, 0, half.height / picture.height), null, null, null, true);
		return half;
	}

	/** Some emulators cannot draw into a bitmap; the picture is then used as it is. **/
	static function canDraw():Bool {
		if (possible == null) {
			var trial = new BitmapData(2, 2, false, 0);
			trial.draw(new BitmapData(2, 2, false, 0xffffff));
			possible = trial.getPixel(1, 1) == 0xffffff;
		}
		return possible;
	}
}
