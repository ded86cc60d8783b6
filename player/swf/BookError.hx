/** A failure that is told to the reader in its own words. **/
class BookError {
	public final title:String;
	public final detail:String;

	public function new(title:String, detail:String) {
		this.title = title;
		this.detail = detail;
	}
}
