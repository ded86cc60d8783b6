#include "NovelText.h"

#include <QStringList>
#include <array>
#include <map>

const QString NovelText::kTitle = QStringLiteral("The Ferry Almanac");
const QString NovelText::kAuthor = QStringLiteral("A. N. Overbeek");

namespace {

struct Person {
    const char* name;
    const char* subject; // he or she
    const char* object;
    const char* possessive;
};

constexpr std::array<Person, 6> kPeople = {{{"Ada", "she", "her", "her"},
                                            {"Tomas", "he", "him", "his"},
                                            {"Mrs Quill", "she", "her", "her"},
                                            {"Berend", "he", "him", "his"},
                                            {"Ilse", "she", "her", "her"},
                                            {"the schoolmaster", "he", "him", "his"}}};

// What a symbol may stand for; alternatives are separated by bars and may hold symbols again.
const std::map<QString, QStringList>& grammar() {
    static const std::map<QString, QStringList> rules = [] {
        const std::pair<const char*, const char*> source[] = {
            {"narration",
             "<opening> <middle> <middle> <closing>|<opening> <middle> <middle> <middle> <closing>|"
             "<middle> <middle> <closing>|<opening> <middle> <middle> <middle> <middle>|"
             "<middle> <opening> <middle> <middle> <middle> <closing>|<opening> <closing>"},
            {"opening",
             "<Time>, <hero> <went> <where> and <did>.|When <weather>, <hero> <was> <where>.|"
             "There was <thing> <where>, and nobody could say who had left it there.|"
             "<Hero> had not meant to <act>, but by <hour> it was already done.|"
             "It was <friend> who first noticed <thing> <where>.|"
             "For as long as <hero> could remember, <truth>.|<Time>, <weather>.|"
             "The <season> <friend> came back, <weather>, and <truth>."},
            {"middle",
             "<He> <did>, <did>, and <feeling>.|<Weather>, and <weather>.|"
             "<Thing> lay <where>, <state>, and <he> left it as it was.|"
             "<He> thought of <thing> and of <friend>, who had once <done> <where>.|"
             "Nothing in <place> was quite as it had been: <truth>, and <truth>.|"
             "Somebody had <done>; one could tell by <thing>, which was <state>.|"
             "“<Wise>,” <friend> used to say, and <hero> had never found a reason to disagree.|"
             "From <place> one saw <thing>, <thing>, and beyond them <thing>, <state>.|"
             "<He> <went> slowly, as one goes when <truth>.|"
             "It took <him> the better part of the <day> to <act>, and even then <feeling>.|"
             "What <he> wanted was simple enough: to <act>, to <act>, and to be home before "
             "<hour>.|"
             "<Friend> had <done> the year before, and people in <place> still talked about it.|"
             "Twice <he> stopped, once because of <thing> and once because <weather>.|"
             "<Thing> had been <state> since the winter of the long ice, when <truth>.|"
             "All along the <bank>, <weather>.|<His> hands knew how to <act> without being told."},
            {"closing",
             "After that <hero> <did>, and <weather>.|It was enough for one <day>.|"
             "<Feeling>.|But <truth>, and <hero> knew it.|"
             "Then <he> <went> home by way of <place>.|The river, as always, kept its opinion to "
             "itself.|"
             "That was how matters stood when <weather>.|<He> did not look back at <thing>."},
            {"talk",
             "“<Question>?” asked <friend>.<br>“<Answer>,” said <hero>. “<Wise>.”|"
             "“<Answer>,” <friend> said, and <did>.<br>“<Question>?”<br>“Not before <hour>. "
             "<Wise>.”|"
             "“You will <act>,” said <friend>. “Everybody does, <time>.”<br><Hero> <did>. "
             "“<Answer>,” <he> said at last.|"
             "“<Wise>,” said <hero>.<br>“So they say in <place>. But <truth>.”<br>“<Question>?”"
             "<br><Friend> did not answer. <Weather>.|"
             "“There is <thing> <where>,” said <friend>, “and it has been there since <hour>.”<br>"
             "“<Question>?”<br>“<Answer>.”"},
            {"question",
             "did you <act>|and who is going to <act>|is it true that <truth>|what did <friend> "
             "want|"
             "where have you put <thing>|how long can a person <act>|will you be at <place> by "
             "<hour>|do you remember <thing>"},
            {"answer",
             "not as long as <truth>|I saw <thing> <where>, that is all|yes, and it was <state>|"
             "ask them at <place>|nobody has asked me to <act>|I would rather <act>|"
             "it can wait until <hour>|you know very well that <truth>"},
            {"wise",
             "A ferry has two sides and belongs to neither|What the river takes it reads first|"
             "You cannot hurry a tide by waving at it|Paper remembers longer than people|"
             "One writes the date first and the rest follows|Ropes are honest when they are wet|"
             "A short day is still a day|There is always one more crossing than you think|"
             "Bread first and then the bad news|Every lamp is a kind of promise"},
            {"time",
             "in the morning|towards evening|on the second day of the thaw|late in <month>|"
             "before the lamps were lit|on a Sunday in <month>|that same <day>|a week later|"
             "at low water|when the market was over"},
            {"month", "March|April|June|August|October|November"},
            {"season", "spring|autumn|winter|summer"},
            {"day", "morning|afternoon|evening|day|night"},
            {"hour", "noon|six o’clock|nightfall|the last crossing|supper|the turn of the tide"},
            {"weather",
             "the fog stood on the water like milk in a dish|rain came over the meadows in three "
             "grey columns|"
             "the wind went round to the east|the ice spoke in its sleep|swallows cut the air "
             "above "
             "the jetty|"
             "the light lay flat and yellow on the roofs|it smelled of tar and cut reeds|"
             "the bells of the other side could be heard|a barge went by without a sound|"
             "the water had risen by a hand’s breadth|smoke stood straight up from every chimney|"
             "the poplars turned the white of their leaves|the first stars hung in the rigging"},
            {"went", "walked|went|came|hurried|rowed|wandered"},
            {"was", "stood|sat|was waiting|was at work|had fallen asleep"},
            {"where",
             "at <place>|behind <place>|on the way to <place>|under the <bank>|by the window|"
             "between two boats|at the foot of the stairs|on the kitchen table|in the long grass|"
             "under the clock"},
            {"bank", "landing stage|embankment|towpath|willows|old sluice"},
            {"place",
             "the ferry house|the chandler’s shop|the upper lock|the schoolhouse|the salt store|"
             "the far shore|the customs bridge|Quill’s garden|the bakery|the rope walk|the chapel"},
            {"thing",
             "a coil of rope|the almanac|a letter without a stamp|the brass lamp|a boat with a "
             "green keel|"
             "the key of the lock|a basket of eels|the tide table|a coat with one button|the map "
             "of "
             "the shallows|"
             "a cup of cold tea|the oar from the wreck|a ledger bound in oilcloth|the ferry bell"},
            {"state",
             "wet through|as good as new|carefully wrapped in newspaper|heavier than it looked|"
             "covered with frost|half buried in silt|still warm|no use to anybody|"
             "older than the bridge|exactly where it had always been"},
            {"did", "counted the boats|lit the lamp|wrote the height of the water into the almanac|"
                    "shook out the wet coat|read the page again|listened|put the kettle on|"
                    "looked for <thing>|folded the letter in four|untied the painter|laughed|"
                    "said nothing|waited for the bell|wiped the glass with a sleeve"},
            {"done", "carried <thing> across|mended the bell|slept in the boat|forgotten <thing>|"
                     "swum the river for a bet|read the whole almanac aloud|painted the door green|"
                     "written to the ministry|lost the key"},
            {"act", "cross before dark|mend <thing>|sell the ferry|read the almanac to the end|"
                    "learn the shallows by heart|answer the letter|find <thing>|ask <friend>|"
                    "keep the lamp burning|row against the stream|count what was left|sleep"},
            {"feeling",
             "it seemed to <him> that the house was listening|<he> was glad of <thing>|"
             "for a moment everything was in its place|<he> felt the cold for the first time|"
             "something in <him> came to rest|<he> wished that <friend> had been there|"
             "it was a long time before <he> moved|<he> could have sung"},
            {"truth",
             "the ferry had never once been late|nobody crossed without a reason|"
             "the almanac was always right about the water and wrong about people|"
             "the bridge would be finished some day|a secret in <place> kept for about a week|"
             "there were more keys than locks|the river was the only road|"
             "<friend> told every story twice|the other side looked better from this one|"
             "whoever held the rope also held the conversation"}};
        std::map<QString, QStringList> result;
        for (const auto& [symbol, alternatives] : source)
            result[QString::fromUtf8(symbol)] =
                QString::fromUtf8(alternatives).split(QLatin1Char('|'));
        return result;
    }();
    return rules;
}

QString capitalized(QString text) {
    if (!text.isEmpty())
        text[0] = text[0].toUpper();
    return text;
}

} // namespace

std::vector<QString> NovelText::chapterTitles() {
    std::vector<QString> titles;
    for (const char* title : {"The Green Keel",
                              "High Water in March",
                              "What the Bell Said",
                              "A Letter Without a Stamp",
                              "The Chandler’s Daughter",
                              "Eels",
                              "The Map of the Shallows",
                              "A Coat with One Button",
                              "Salt",
                              "The Other Side",
                              "Three Kinds of Rope",
                              "The Customs Bridge",
                              "A Visitor",
                              "The Long Ice",
                              "Mrs Quill Is Mistaken",
                              "Tide Tables",
                              "The Upper Lock",
                              "A Ledger Bound in Oilcloth",
                              "Fog",
                              "The Ministry Replies",
                              "The Oar from the Wreck",
                              "Lamps",
                              "The Last Crossing",
                              "The First Page"})
        titles.push_back(QString::fromUtf8(title));
    return titles;
}

NovelText::NovelText(unsigned chapter)
    : iRandom(chapter * 2654435761U + 11U),
      iHero(chapter % kPeople.size()),
      iFriend((chapter + 1 + chapter / 6) % kPeople.size()) {
    if (iFriend == iHero)
        iFriend = (iFriend + 1) % kPeople.size();
}

QString NovelText::pick(const QString& symbol) {
    const Person& hero = kPeople[iHero];
    const QString symbolName = symbol.toLower();
    QString text;
    if (symbolName == QLatin1String("hero"))
        text = QString::fromLatin1(hero.name);
    else if (symbolName == QLatin1String("friend"))
        text = QString::fromLatin1(kPeople[iFriend].name);
    else if (symbolName == QLatin1String("he"))
        text = QString::fromLatin1(hero.subject);
    else if (symbolName == QLatin1String("him"))
        text = QString::fromLatin1(hero.object);
    else if (symbolName == QLatin1String("his"))
        text = QString::fromLatin1(hero.possessive);
    else {
        const QStringList& choices = grammar().at(symbolName);
        const auto count = static_cast<unsigned>(choices.size());
        const auto last = iLastChoice.find(symbolName);
        const unsigned choice = last == iLastChoice.end()
                                    ? below(count)
                                    : (last->second + 1 + below(count - 1)) % count;
        iLastChoice[symbolName] = choice;
        text = expand(choices[static_cast<int>(choice)]);
    }
    return symbol[0].isUpper() ? capitalized(text) : text;
}

QString NovelText::expand(const QString& pattern) {
    QString result;
    for (qsizetype at = 0; at < pattern.size();) {
        const qsizetype open = pattern.indexOf(QLatin1Char('<'), at);
        if (open < 0)
            return result + pattern.mid(at);
        const qsizetype close = pattern.indexOf(QLatin1Char('>'), open);
        const QString symbol = pattern.mid(open + 1, close - open - 1);
        result += pattern.mid(at, open - at);
        result += symbol == QLatin1String("br") ? QStringLiteral("\n") : pick(symbol);
        at = close + 1;
    }
    return result;
}

QString NovelText::paragraph() {
    iWasTalk = !iWasTalk && below(5) < 2;
    return pick(iWasTalk ? QStringLiteral("talk") : QStringLiteral("narration"));
}
