/** Loads the pictures of pages and keeps the ones that are wanted. **/
class PageImages {
	/** Pictures kept at a time, whatever the length of the book. **/
	static inline final MOST = 12;

	/** Called with a page whose picture has arrived or failed. **/
	public var onChange:Int->Void = _ -> {};

	public var count(default, null) = 0;

	final addresses:Array<String>;
	final kept = new Map<Int, PageImage>();

	public function new(addresses:Array<String>) {
		this.addresses = addresses;
	}

	public function get(page:Int):PageImage {
		var image = kept.get(page);
		if (image == null) {
			image = new PageImage(page, addresses[page - 1], settled);
			kept.set(page, image);
			count++;
		}
		return image;
	}

	/** Starts loading pages and drops all others; the most urgent come first. **/
	public function want(wanted:Array<Int>) {
		var pages = [];
		for (page in wanted)
			if (!pages.contains(page) && pages.length < MOST)
				pages.push(page);
		for (page in [for (page in kept.keys()) page])
			if (!pages.contains(page))
				drop(page);
		for (page in pages)
			get(page);
	}

	function drop(page:Int) {
		kept.get(page).drop();
		kept.remove(page);
		count--;
	}

	function settled(image:PageImage) {
		if (kept.get(image.page) == image)
			onChange(image.page);
	}
}
