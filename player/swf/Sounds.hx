import flash.events.IOErrorEvent;
import flash.media.Sound;
import flash.media.SoundChannel;
import flash.media.SoundTransform;
import flash.net.URLRequest;

/** The page-turn sound and the background sound. **/
class Sounds {
	static inline final TURN_SOUND = "files/extfiles/moveSound.mp3";
	static inline final TURN_VOLUME = 0.7;
	static inline final ON_AND_ON = 0x7fffffff;

	public var on(default, null) = true;

	final turnSound = load(TURN_SOUND);
	var music:Null<SoundChannel>;

	public function new() {}

	public function playTurn() {
		if (on)
			turnSound.play(0, 0, new SoundTransform(TURN_VOLUME));
	}

	/** @param loops how often it is played; below 0: on and on **/
	public function playMusic(address:String, loops:Int) {
		if (address != "" && loops != 0)
			music = load(address).play(0, loops < 0 ? ON_AND_ON : loops, new SoundTransform(on ? 1 : 0));
	}

	public function switchTo(on:Bool) {
		this.on = on;
		if (music != null)
			music.soundTransform = new SoundTransform(on ? 1 : 0);
	}

	/** A sound that cannot be loaded is no reason to disturb the reader. **/
	static function load(address:String):Sound {
		var sound = new Sound();
		sound.addEventListener(IOErrorEvent.IO_ERROR, _ -> {});
		sound.load(new URLRequest(address));
		return sound;
	}
}
