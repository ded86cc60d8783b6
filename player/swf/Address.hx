/** What addresses in a book may do, by the same rules as in the book's page. **/
class Address {
	static final FOLLOWED = ~/^(https?:\/\/|mailto:|tel:[+\d(])/i;
	static final LEADS_OUT = ~/^[a-z][a-z0-9+.-]*:|^\/|\\|(^|\/)\.\.?(\/|$)/i;

	/** Whether the reader may be led there: the web, mail and telephone, nothing that runs a script. **/
	public static function mayFollow(address:String):Bool {
		return FOLLOWED.match(address);
	}

	/**
		Address, relative to the movie, of a file that the configuration names; empty for one that
		leads out of the book's files.
	**/
	public static function ofFile(path:String):String {
		return path == "" || LEADS_OUT.match(path) ? "" : "files/" + path.split("/").map(StringTools.urlEncode).join("/");
	}
}
