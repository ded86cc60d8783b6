import flash.display.Graphics;

/** A path of a sign: x, y of its points in a square of 24 by 24. **/
private typedef Stroke = Array<Float>;

/** The signs on the bar's buttons. **/
class Signs {
	public static final PREVIOUS:Array<Stroke> = [[14.5, 6, 8.5, 12, 14.5, 18]];
	public static final NEXT:Array<Stroke> = [[9.5, 6, 15.5, 12, 9.5, 18]];
	public static final PLAY:Array<Stroke> = [[8.5, 6, 8.5, 18, 18, 12, 8.5, 6]];
	public static final PAUSE:Array<Stroke> = [[9, 6.5, 9, 17.5], [15, 6.5, 15, 17.5]];
	public static final SOUND:Array<Stroke> = [SPEAKER, [15, 9, 16.4, 10.4, 16.4, 13.6, 15, 15], [17.6, 6.8, 20, 10, 20, 14, 17.6, 17.2]];
	public static final SILENCE:Array<Stroke> = [SPEAKER, [15.5, 9.5, 20.5, 14.5], [20.5, 9.5, 15.5, 14.5]];
	public static final THUMBNAILS:Array<Stroke> = [
		[4.5, 5.5, 10, 5.5, 10, 11, 4.5, 11, 4.5, 5.5],
		[14, 5.5, 19.5, 5.5, 19.5, 11, 14, 11, 14, 5.5],
		[4.5, 14, 10, 14, 10, 19.5, 4.5, 19.5, 4.5, 14],
		[14, 14, 19.5, 14, 19.5, 19.5, 14, 19.5, 14, 14]
	];
	public static final FULL:Array<Stroke> = [
		[5, 9.5, 5, 5, 9.5, 5],
		[14.5, 5, 19, 5, 19, 9.5],
		[19, 14.5, 19, 19, 14.5, 19],
		[9.5, 19, 5, 19, 5, 14.5]
	];
	public static final WINDOW:Array<Stroke> = [
		[9.5, 5, 9.5, 9.5, 5, 9.5],
		[19, 9.5, 14.5, 9.5, 14.5, 5],
		[14.5, 19, 14.5, 14.5, 19, 14.5],
		[5, 14.5, 9.5, 14.5, 9.5, 19]
	];
	static final SPEAKER:Stroke = [4.5, 9.8, 4.5, 14.2, 7.5, 14.2, 11.5, 17.8, 11.5, 6.2, 7.5, 9.8, 4.5, 9.8];

	/** Draws a sign around the middle of a button. **/
	public static function draw(graphics:Graphics, sign:Array<Stroke>, ink:Int, middleX:Float, middleY:Float) {
		graphics.lineStyle(1.8, ink);
		for (stroke in sign) {
			graphics.moveTo(middleX - 12 + stroke[0], middleY - 12 + stroke[1]);
			for (index in 1...stroke.length >> 1)
				graphics.lineTo(middleX - 12 + stroke[2 * index], middleY - 12 + stroke[2 * index + 1]);
		}
		graphics.lineStyle();
	}
}
