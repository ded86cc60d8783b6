import flash.display.BitmapData;
import flash.display.Shape;
import flash.events.Event;
import flash.events.EventDispatcher;
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

	/**
		Some emulators cannot draw into a bitmap and give up what they were doing when asked to; the
		picture is then used as it is. A listener of its own keeps them from giving up more than that.
	**/
	static function canDraw():Bool {
		if (possible == null) {
			possible = false;
			var dot = new Shape();
			dot.graphics.beginFill(0);
			dot.graphics.drawRect(0, 0, 2, 2);
			var trial = new EventDispatcher();
			trial.addEventListener(Event.INIT, _ -> {
				new BitmapData(2, 2, false).draw(dot);
				possible = true;
			});
			trial.dispatchEvent(new Event(Event.INIT));
		}
		return possible;
	}
}
