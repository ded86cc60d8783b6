#include "output/BookName.h"

#include <gtest/gtest.h>

namespace {

void expectAll(std::initializer_list<const char*> names, bool harmless) {
    for (const char* name : names)
        EXPECT_EQ(BookName::isSafe(QString::fromUtf8(name)), harmless) << name;
}

TEST(BookName, LetsNamesOfPicturesSoundsAndDocumentsBe) {
    expectAll({"mainbgImgUrl.PNG", "backgroundSoundURL.mp3", "a..b.png", "clip.v2.mp4", "a",
               "book.swf", "page.html", "script.js", "data.json", "B\u00fccher (2), neu & alt.jpg",
               "\u9875.webp"},
              true);
}

TEST(BookName, LetsTheDotBeThatStandsForNoEnding) {
    EXPECT_EQ(BookName::withExtensionOf("KEY", "/x.d/loop"), u"KEY.");
    expectAll({"KEY."}, true);
    expectAll({"", ".", "..", "KEY..", "KEY ", "KEY .", "web.config.", "a.php.", "NUL."}, false);
}

TEST(BookName, RefusesWhatLeadsOutOrIsHidden) {
    expectAll({"a/b.png", "/etc/passwd", "..\\a.png", "C:a.png", ".htaccess", ".user.ini", "..png"},
              false);
}

TEST(BookName, RefusesWhatWebServersRunOrTakeOrdersFrom) {
    expectAll({"KEY.php",    "KEY.PhP",  "KEY.php7",  "KEY.phtml",   "KEY.phar",
               "KEY.asp",    "KEY.aspx", "KEY.ashx",  "KEY.jsp",     "KEY.cgi",
               "KEY.pl",     "KEY.py",   "KEY.shtml", "KEY.cfm",     "web.config",
               "Web.Config", "php.ini",  "KEY.var",   "KEY.php.jpg", "a.shtml.de"},
              false);
    expectAll({"KEY.phpx", "php", "php.png", "aspx.jpg", "Prospekt.pl.pdf", "py.jpg", "config.json",
               "a.configs"},
              true);
}

TEST(BookName, RefusesWhatWindowsCannotHave) {
    expectAll({"a<b.png", "a>b.png", "a:b.png", "a\"b.png", "a|b.png", "a?.png", "a*.png",
               "a\nb.png", "a.png ", "CON.jpg", "aux", "aux.tar.gz", "nul .png", "Com1.png", "LPT9",
               "com\u00b9.png", "CONIN$.png"},
              false);
    expectAll({"Console.jpg", "auxiliary", "com.png", "com10.png", "a.con", "null.png", " a.png"},
              true);
}

} // namespace
