#include "library/search/SearchQuery.h"

#include <gtest/gtest.h>

namespace {

std::string asText(const std::vector<SearchWords::Word>& words) {
    return SearchWords::joined(words).remove(SearchWords::gap).simplified().toStdString();
}

} // namespace

TEST(SearchWords, AreComparedAsReadersTakeThem) {
    const struct {
        const char* text;
        const char* words;
        const char* parts = "";
    } cases[] = {
        {"The QUICK, brown\nfox!", "the quick brown fox"},
        {"Ärger Übergröße naïve ÅNGSTRÖM", "arger ubergrosse naive angstrom"},
        {"A\u0308rger e\u0301", "arger e"},
        {"ﬁnd ﬄ Œuvre ø Łódź", "find ffl oeuvre o lodz"},
        {"l'arbre don\u2019t", "l arbre don t"},
        {"har-\nbour", "harbour", "har bour"},
        {"har-\n  bour well-known", "harbour well known", "har bour"},
        {"soft\u00adhyphen co\u00ad\nop", "softhyphen coop"},
        {"1914-\n1918 A4-\nB", "1914 1918 a4 b"},
        {"end -\nnext a - b", "end next a b"},
        {"日本語の本", "日 本 語 の 本"},
        {"河面\n上PDF12", "河 面 上 pdf12"},
        {"ﾊﾟｰｽ がぎ", "ハ ー ス か き"},
        {"한국", "한 국"},
        {"كِتَابٌ کتاب ـ", "كتاب كتاب"},
        {"x² ①", "x2 1"},
        {"", ""},
        {"-\u00ad \n -", ""},
    };
    for (const auto& item : cases) {
        const auto words = SearchWords::in(QString::fromUtf8(item.text));
        const auto wanted = QString::fromUtf8(item.words)
                                .normalized(QString::fromUtf8(item.words).startsWith(u'한')
                                                ? QString::NormalizationForm_KD
                                                : QString::NormalizationForm_C);
        EXPECT_EQ(asText(words.all), wanted.toStdString()) << item.text;
        EXPECT_EQ(asText(words.parts), item.parts) << item.text;
    }
}

TEST(SearchQuery, FindsItsPlacesInTheText) {
    // The parts of the text that are found, in brackets.
    const struct {
        const char* query;
        const char* text;
        const char* marked;
    } cases[] = {
        {"grosse", "Die Größe, große Größen", "Die [Größe], [große] Größen"},
        {"harbour", "the har-\nbour master", "the [har-\nbour] master"},
        {"bour", "the har-\nbour master", "the har-\n[bour] master"},
        {"well-known", "well-known wellknown well known", "[well-known] [wellknown] [well known]"},
        {"\"quick fox\"", "fox quick\nfox", "fox [quick\nfox]"},
        {"\u201equick fox\u201c b", "b quick fox", "[b] [quick fox]"},
        {"fox quick", "quick, fox", "[quick], [fox]"},
        {"fox cow", "fox", "fox"},
        {"har*", "harbour hard ha Harz", "[harbour] [hard] ha [Harz]"},
        {"h*", "harbour h", "harbour [h]"},
        {"本語", "日本語の本", "日[本語]の本"},
        {"本*", "日本語の本", "日[本]語の[本]"},
    };
    for (const auto& item : cases) {
        QString text = QString::fromUtf8(item.text);
        const auto hits = SearchQuery(QString::fromUtf8(item.query)).hitsIn(text);
        for (auto hit = hits.rbegin(); hit != hits.rend(); ++hit)
            text.insert(hit->to, ']').insert(hit->from, '[');
        EXPECT_EQ(text.toStdString(), item.marked) << item.query;
    }
    EXPECT_EQ(SearchQuery("\"a b\"").forPlayer(), "\"a b\"");
    EXPECT_EQ(SearchQuery("\"a b\" Cow*").forPlayer(), "a b Cow");
    EXPECT_TRUE(SearchQuery(QString(SearchQuery::longest + 1, 'a')).isEmpty());
}
