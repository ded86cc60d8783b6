#include "BookText.h"

QString BookText::styleSheet() {
    return QStringLiteral(R"(
p { line-height: 126%; margin-top: 0; margin-bottom: 7px; }
p.lead { font-style: italic; color: #2e7e78; margin-bottom: 12px; }
p.quote { color: #d6583c; font-style: italic; margin-left: 24px; margin-right: 24px;
          margin-top: 8px; margin-bottom: 12px; }
h2 { font-size: 13pt; color: #1d2b45; margin-top: 12px; margin-bottom: 5px; }
li { margin-bottom: 4px; line-height: 130%; }
a { color: #2e7e78; }
td, th { padding: 4px 6px; }
th { background-color: #1d2b45; color: #fbf7ee; }
)");
}

QString BookText::turningPage() {
    return QStringLiteral(R"(
<p class="lead">Before there was a scroll bar there was a scroll, and readers were glad to be
rid of it.</p>
<p>A page is a modest invention. It says: this much, and then a pause. The hand lifts the
corner, the paper bends, light slides across the sheet, and for the length of a breath the
reader is between two thoughts. Nobody designed that pause, and hardly anybody who has read
for a lifetime would give it up.</p>
<p>When documents moved to the screen they kept their pages and lost the turn. A long strip
of sheets slides past behind glass; it is quick, it is practical, and it feels like looking
for a receipt. What is missing is the sense of place that a bound book gives for nothing: how
far one has come, how much is left, on which side of the spread the picture was.</p>
<p class="quote">&ldquo;I remember that it was on a left-hand page, quite low down, with a
river.&rdquo;</p>
<p>A book that turns on the screen gives the place back. Two pages lie open side by side. A
corner curls when the pointer comes near. Drag it, and the sheet follows; let go half-way, and
it falls to the nearer side, just as paper would.</p>
<h2>What is worth keeping</h2>
<p>Paper should not be copied for its own sake. A screen has no dust, no glue and no need to
creak. Four things are worth the trouble:</p>
<ul>
<li>the spread, because editors compose two pages as one picture;</li>
<li>the turn, because it marks the reader's progress;</li>
<li>the cover, because a book is also an object that someone chose;</li>
<li>the quiet, because a page does not ask for attention.</li>
</ul>
<p>Everything else may be better than paper. Links can be followed, the contents can be
jumped to, a small drawing can be brought close to the eye, and the whole shelf weighs
nothing.</p>
<p>The pages that follow show what such a book can hold: running text, photographs, drawings
with hairlines, tables, very small type and very large colour. If they look right when they
turn, so will yours.</p>
)");
}

QString BookText::documentToBook() {
    return QStringLiteral(R"(
<p class="lead">Three steps lead from a document to a book: take in its pages, choose how the
book should look, publish it.</p>
<h2>Taking in the pages</h2>
<p>Each page of the document is drawn once, at twice its size, so that it stays sharp when a
reader comes closer. The drawing keeps what the author made: fonts, tints, fine lines, pages
that lie on their side and pages of other sizes. Links are read along with the pages, and so
are the bookmarks, from which the book's table of contents is made.</p>
<p>Not every page is needed every time. A range such as <b>1-4, 9, 12-</b> takes some and
leaves the rest.</p>
<h2>Choosing the look</h2>
<p>A template brings the table on which the book lies, the buttons around it, the sound of a
turning sheet and a list of properties: colours, titles, background picture, what the reader
may do. Change one and the preview shows it at once. A set of values worth keeping can be
saved as a style and used again for the next issue.</p>
<h2>Publishing</h2>
<p>The finished book is a folder. It holds one page for the browser, one picture per page and
the book's settings. Put it on a web server, on a memory stick or in a message; there is
nothing to install on the other side. An example of a place to put it is
<a href="https://www.example.org/books/turning-page/">www.example.org</a>.</p>
)");
}

QString BookText::pictures() {
    return QStringLiteral(R"(
<p class="lead">A photograph forgives much; a drawing forgives nothing.</p>
<p>Soft things, such as skies, skin and water, survive being made small. Their tones run into
one another, and a little loss goes unseen. Hard things do not: a black line on white paper
shows every careless step between the drawing board and the eye. Where a picture is
compressed too far, a gray dust gathers around it.</p>
<p>The next pages test both. First come four landscapes, made by rule and not by a camera,
each with its own grain. Then there are curves a quarter of a point wide, a wheel of every
hue, and steps of gray that should all be told apart.</p>
<p class="quote">Look at the centre of the rosette: if the lines stay lines there, the page
was drawn well.</p>
<p>Colour carries a second trap. A pale tint across a whole page may break into bands, and
two tints that the author made the same must remain the same on facing pages, or the spread
falls apart at the fold.</p>
)");
}

QString BookText::figures() {
    return QStringLiteral(R"(
<p class="lead">Tables are where small type lives; readers lean in.</p>
<p>The table lists sheet sizes in the order in which a printer cuts them: every sheet is the
one before it, folded once. The ratio of the sides never changes, only the area halves.</p>
<table width="100%" cellspacing="0" cellpadding="4" border="0">
<tr><th>Sheet</th><th align="right">Width, mm</th><th align="right">Height, mm</th>
<th align="right">Width, pt</th><th align="right">Area, m&sup2;</th></tr>
<tr><td>A2</td><td align="right">420</td><td align="right">594</td>
<td align="right">1190.6</td><td align="right">0.2495</td></tr>
<tr bgcolor="#f0e8d8"><td>A3</td><td align="right">297</td><td align="right">420</td>
<td align="right">841.9</td><td align="right">0.1247</td></tr>
<tr><td>A4</td><td align="right">210</td><td align="right">297</td>
<td align="right">595.3</td><td align="right">0.0624</td></tr>
<tr bgcolor="#f0e8d8"><td><b>A5</b></td><td align="right">148</td>
<td align="right">210</td><td align="right">419.5</td><td align="right">0.0311</td></tr>
<tr><td>A6</td><td align="right">105</td><td align="right">148</td>
<td align="right">297.6</td><td align="right">0.0155</td></tr>
<tr bgcolor="#f0e8d8"><td>A7</td><td align="right">74</td><td align="right">105</td>
<td align="right">209.8</td><td align="right">0.0078</td></tr>
</table>
<p style="margin-top:12px">So a book of sixteen pages is one sheet of A2, folded three times and
cut. The chart on the next page shows how the pages on one side grow with every fold.</p>
)");
}
