import flash.Lib;
import flash.display.Stage;
import flash.events.Event;

/** Turns pages by itself, a while after the last one has landed. **/
class Slideshow {
	public var running(default, null) = false;
	public var onChange:Void->Void = () -> {};

	final book:Book;
	final turner:Turner;
	var waitingSince = 0;

	public function new(book:Book, turner:Turner, stage:Stage) {
		this.book = book;
		this.turner = turner;
		stage.addEventListener(Event.ENTER_FRAME, _ -> advance());
	}

	public function run(running:Bool) {
		this.running = running;
		wait();
		onChange();
	}

	/** Starts the time until the next turn anew. **/
	public function wait() {
		waitingSince = Lib.getTimer();
	}

	function advance() {
		if (!running || turner.turning || Lib.getTimer() - waitingSince < book.config.slideInterval * 1000)
			return;
		wait();
		if (turner.current < book.views.count - 1)
			turner.step(1);
		else if (book.config.loopPlay)
			turner.go(0);
		else
			run(false);
	}
}
