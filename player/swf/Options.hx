/** What the book's template decided when the movie was compiled (-D turn, pages, binding). **/
class Options {
	/** Never two pages side by side. **/
	public static inline final SINGLE_PAGES = #if (pages == "single") true #else false #end;

	/** The pages are bound in the middle and darken towards the binding. **/
	public static inline final BOUND = #if (binding == "no") false #else true #end;

	/** How a leaf moves. **/
	public static function painter():LeafPainter {
		return #if (turn == "slide") new SlidePainter() #elseif (turn == "flip") new FlipPainter() #else new CurlPainter() #end;
	}

	/** A single page fades while it leaves: the higher, the later. **/
	public static inline final FADE = #if (turn == "slide") 1.6 #else 6.0 #end;

	/** Whether a corner can lift: boards and slides do not bend. **/
	public static inline final BENDS = #if (turn == "slide" || turn == "flip") false #else true #end;
}
