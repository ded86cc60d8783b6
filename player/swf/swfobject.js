/*
 * Embeds a book's Flash movie in a page of your own:
 *
 *   <div id="book"></div>
 *   <script src="swfobject.js"></script>
 *   <script>FolveroSwf.embed("book", { movie: "book.swf", width: "100%", height: "600" });</script>
 *
 * The page must lie beside the book's "files" folder. Browsers of today have no Flash Player; they
 * need an emulator, or the book's own page, which needs neither.
 */
var FolveroSwf = (function () {
  "use strict";

  var TYPE = "application/x-shockwave-flash";

  /** Whether this browser says that it can run Flash movies. */
  function isAvailable() {
    var types = navigator.mimeTypes;
    return Boolean(types && types[TYPE] && types[TYPE].enabledPlugin);
  }

  function parameter(name, value) {
    var element = document.createElement("param");
    element.setAttribute("name", name);
    element.setAttribute("value", value);
    return element;
  }

  /**
   * Replaces an element by the movie. What the element holds stays inside as the fallback that
   * browsers show when they cannot run the movie. Gives the new element, or null when there is no
   * element of that id.
   */
  function embed(id, options) {
    var place = document.getElementById(id);
    if (!place) return null;
    var settings = options || {};
    var movie = document.createElement("object");
    movie.setAttribute("type", TYPE);
    movie.setAttribute("data", settings.movie || "book.swf");
    movie.setAttribute("width", settings.width || "100%");
    movie.setAttribute("height", settings.height || "100%");
    movie.id = id;
    movie.appendChild(parameter("movie", settings.movie || "book.swf"));
    movie.appendChild(parameter("allowFullScreen", "true"));
    movie.appendChild(parameter("allowScriptAccess", "sameDomain"));
    while (place.firstChild) movie.appendChild(place.firstChild);
    place.parentNode.replaceChild(movie, place);
    return movie;
  }

  return { isAvailable: isAvailable, embed: embed };
})();
