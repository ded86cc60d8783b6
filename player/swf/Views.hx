/** Page numbers of a view, 0 where there is no page. **/
typedef Pages = {left:Int, right:Int};

/**
	How pages (numbered from 1) are dealt out to views (numbered from 0). In spread mode the first page
	stands alone on the side where a book begins; in single mode every page is a view.
**/
class Views {
	public final pageCount:Int;
	public final spread:Bool;
	public final rightToLeft:Bool;
	public final count:Int;

	public function new(pageCount:Int, spread:Bool, rightToLeft:Bool) {
		this.pageCount = pageCount;
		this.spread = spread;
		this.rightToLeft = rightToLeft;
		count = spread ? (pageCount >> 1) + 1 : pageCount;
	}

	public function at(view:Int):Pages {
		var first = spread ? existing(2 * view) : 0;
		var second = spread ? existing(2 * view + 1) : existing(view + 1);
		return rightToLeft ? {left: second, right: first} : {left: first, right: second};
	}

	/** Pages of a view in reading order. **/
	public function pagesOf(view:Int):Array<Int> {
		var pages = at(view);
		var inOrder = rightToLeft ? [pages.right, pages.left] : [pages.left, pages.right];
		return inOrder.filter(page -> page > 0);
	}

	public function viewOf(page:Int):Int {
		var within = page < 1 ? 1 : page > pageCount ? pageCount : page;
		return spread ? within >> 1 : within - 1;
	}

	public function clamp(view:Int):Int {
		return view < 0 ? 0 : view >= count ? count - 1 : view;
	}

	public function has(view:Int):Bool {
		return view >= 0 && view < count;
	}

	function existing(page:Int):Int {
		return page >= 1 && page <= pageCount ? page : 0;
	}
}
