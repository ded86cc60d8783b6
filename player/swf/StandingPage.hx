import flash.display.Shape;
import flash.display.Sprite;
import flash.geom.Matrix;
import flash.text.TextField;
import flash.text.TextFormat;
import flash.text.TextFormatAlign;

/** A page that lies on the table, to the left or right of x = 0. **/
class StandingPage extends Sprite {
	public final onLeft:Bool;

	final print = new Shape();
	final note = new TextField();

	public function new(onLeft:Bool) {
		super();
		this.onLeft = onLeft;
		note.defaultTextFormat = new TextFormat("_sans", 15, 0x6c6c6c, null, null, null, null, null, TextFormatAlign.CENTER);
		note.selectable = false;
		addChild(print);
		addChild(note);
	}

	public function show(face:Null<Face>, image:Null<PageImage>) {
		print.graphics.clear();
		note.visible = false;
		if (face == null)
			return;
		var outline = Outline.rectangle(0, 0, face.width, face.height);
		face.paint(print.graphics, outline, new Matrix(onLeft ? -1 : 1), onLeft);
		if (image.state != Missing)
			return;
		note.visible = true;
		note.text = "Page " + image.page + " could not be shown";
		note.width = face.width;
		note.height = 24;
		note.x = onLeft ? -face.width : 0;
		note.y = face.height / 2 - 12;
	}
}
