import flash.Lib;
import flash.display.Sprite;
import flash.events.Event;

private typedef Start = {alpha:Float, rise:Float, scale:Float};

/** How the book comes in, by the name that the configuration gives. **/
class Opening {
	static inline final MILLISECONDS = 800;

	/** A movie that has just been loaded is slow at first; frames that come late must not swallow it all. **/
	static inline final LONGEST_STEP = 80;

	public static function bringIn(table:Sprite, way:String) {
		var start:Null<Start> = switch way.toLowerCase() {
			case "fade in": {alpha: 0, rise: 0, scale: 1};
			case "rise": {alpha: 0, rise: 60, scale: 0.94};
			case "drop": {alpha: 0, rise: -40, scale: 1.12};
			default: null;
		}
		if (start != null)
			run(table, start);
	}

	static function run(table:Sprite, start:Start) {
		var before = Lib.getTimer();
		var passed = 0.0;
		var advance:Event->Void = null;
		advance = _ -> {
			var now = Lib.getTimer();
			passed = Math.min(1, passed + Math.min(LONGEST_STEP, now - before) / MILLISECONDS);
			before = now;
			var left = Math.pow(1 - passed, 3);
			var scale = 1 + (start.scale - 1) * left;
			table.alpha = 1 + (start.alpha - 1) * left;
			table.scaleX = table.scaleY = scale;
			table.x = table.stage.stageWidth / 2 * (1 - scale);
			table.y = table.stage.stageHeight * 0.55 * (1 - scale) + start.rise * left;
			if (passed >= 1)
				table.removeEventListener(Event.ENTER_FRAME, advance);
		};
		table.addEventListener(Event.ENTER_FRAME, advance);
		advance(null);
	}
}
