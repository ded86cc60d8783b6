"""Documents whose paragraphs are known, since they are made here: HTML that Chromium prints, and the paragraphs in the
order in which readers read them. The text is made of words at random, the same in each run."""

import html
import random

WORDS = """about above after again air all along although always among and animal answer any are around ask away back
because been before began being below between both brought build but came can carry change city close cold come could
country cover cross dark day did different does done door down draw during each early earth eat end enough even every
example eye face family far father feel feet few field find fire first fish five follow food form found four from full
gave get give goes gold good govern great green ground group grow half hand hard have head hear heat heavy help here
high hold home hour house how hundred idea inch island just keep kind king knew know land large last late laugh lead
learn leave left less letter life light like line list little live long look machine made make many mark mean measure
might mile mind minute money moon more morning most mother mountain move much must name near need never new next night
noon north notice noun number numeral object ocean off often old once only open order other our out over own page
paper part pass pattern people perhaps person picture piece place plain plan plane plant play point port power press
problem produce pull question quick rain reach ready real record red remember rest river road rock room round rule run
said same saw school science second see sentence serve seven several shape ship short should show side simple since
sing size sleep slow small snow some song soon sound south space special spell stand star start state stay step still
stood stop story street strong study such sun sure surface table take talk teach tell ten than that the their them then
there these they thing think this those though thought thousand three through time together told took top toward town
travel tree true turn two under understanding until upon usual very voice vowel wait walk want war warm watch water
well went were west what wheel when where which while white whole why wind with without wonder wood word work world
would write year you young""".split()
ARABIC = """في من على إلى هذا الكتاب البيت المدينة القديمة كان يوم جميل
الرجل الذي ذهب صباح البحر كبير والشمس فوق الجبل ثم عاد مع
صديقه بعد ساعات طويلة وكتب رسالة قصيرة عن الطريق والناس
والسوق حيث وجد كل شيء كما تركه قبل سنوات""".split()
JAPANESE = """山の上には 小さな家が あって 老人と犬が 静かに 暮らして いました。
春になると 川の水が 増えて 村の子供たちは 橋の近くで 遊びます。
秋の夜は 長く 月が 明るく 道を 照らすので 旅人は 迷わずに 町まで
歩いて 行けるのです。 雪が 降る前に 薪を 集めて 冬を 待ちました。""".split()


class Text:
    """Makes paragraphs, and keeps those of a document in the order in which they are made."""

    def __init__(self, seed):
        self.random = random.Random(seed)
        self.paragraphs = []

    def keep(self, text):
        self.paragraphs.append(text)
        return html.escape(text)

    def words(self, least, most, of=WORDS):
        return [self.random.choice(of) for _ in range(self.random.randint(least, most))]

    def title(self, least=3, most=6):
        return " ".join(self.words(least, most)).capitalize()

    def sentence(self):
        words = self.words(6, 22)
        middle = len(words) // 2
        if len(words) > 12:
            words[middle] += ","
        return " ".join(words).capitalize() + "."

    def prose(self, least=2, most=6):
        return " ".join(self.sentence() for _ in range(self.random.randint(least, most)))

    def arabic(self):
        return " ".join(self.words(30, 70, ARABIC)) + "."

    def japanese(self):
        text = "".join(self.words(25, 60, JAPANESE)).rstrip("。")
        return text + "。"


def element(name, text, attributes=""):
    return f"<{name}{attributes}>{text}</{name}>\n"


def paper():
    text = Text("paper")
    body = element("h1", text.keep(text.title(6, 9)))
    body += element("p", text.keep("Anna Field and Peter River"), " class=by")
    body += element("p", text.keep(text.prose(4, 4)), " class=abstract") + "<div class=columns>\n"
    for section in range(1, 13):
        body += element("h2", text.keep(f"{section} {text.title()}"))
        body += "".join(element("p", text.keep(text.prose())) for _ in range(4))
        if section in (2, 5):
            items = (element("li", text.keep("• " + text.sentence())) for _ in range(3))
            body += "<ul>" + "".join(items) + "</ul>"
    return text, body + "</div>", """@page{margin:20mm 18mm}
        body{font:9.5pt/1.2 Liberation Serif;text-align:justify;hyphens:auto}
        h1{font-size:17pt;text-align:center}.by{text-align:center}.abstract{margin:0 12mm 6mm}
        .columns{columns:2;column-gap:6mm}h2{font-size:11.5pt;margin:3mm 0 1mm;text-align:left}
        p{margin:0;text-indent:4mm}
        h2+p,.by,.abstract{text-indent:0}ul{list-style:none;margin:1mm 0;padding:0 0 0 4mm}
        li{text-indent:-3mm;padding-left:3mm}"""


def novel():
    text = Text("novel")
    body = ""
    for chapter in ("One", "Two"):
        body += element("h1", text.keep(f"Chapter {chapter}"))
        for number in range(11):
            speech = "“" + text.sentence()[:-1] + ",” she said." if number % 3 == 2 else text.prose(2, 9)
            body += element("p", text.keep(speech))
    return text, body, """@page{size:A5;margin:18mm 15mm 20mm;@bottom-center{content:counter(page)}}
        body{font:10.5pt/1.35 Liberation Serif;text-align:justify;hyphens:auto}
        h1{font-size:16pt;text-align:center;margin:12mm 0}
        p{margin:0;text-indent:5mm}h1+p{text-indent:0}"""


def newspaper():
    text = Text("newspaper")
    body = element("h1", text.keep("The Morning River"))
    for article in range(5):
        body += "<article>" + element("h2", text.keep(text.title(5, 9))) + "<div>"
        body += "".join(element("p", text.keep(text.prose(2, 5))) for _ in range(9)) + "</div></article>\n"
    return text, body, """@page{margin:12mm}body{font:8.5pt/1.2 Liberation Serif;text-align:justify;hyphens:auto}
        h1{font-size:34pt;text-align:center;border-bottom:2px solid;margin:0 0 3mm}
        h2{font-size:16pt;text-align:left;margin:3mm 0 2mm}
        div{columns:4;column-gap:4mm}p{margin:0;text-indent:3mm}p:first-child{text-indent:0}
        article{border-top:1px solid}"""


def slides():
    text = Text("slides")
    body = ""
    for slide in range(9):
        body += "<section>" + element("h1", text.keep(text.title()))
        columns = 2 if slide % 3 == 2 else 1
        for _ in range(columns):
            points = ("• " + " ".join(text.words(3, 24)).capitalize() for _ in range(4))
            body += "<ul>" + "".join(element("li", text.keep(point)) for point in points) + "</ul>"
        body += "</section>\n"
    return text, body, """@page{size:254mm 143mm;margin:12mm}body{font:14pt/1.2 Liberation Sans;margin:0}
        section{break-after:page;display:grid;grid-auto-flow:column;gap:10mm;grid-template-rows:auto 1fr}
        h1{font-size:28pt;margin:0;grid-column:1/span 2;grid-row:1}ul{list-style:none;padding:0;margin:0;grid-row:2}
        li{margin:0 0 4mm;padding-left:6mm;text-indent:-6mm}"""


def form():
    text = Text("form")
    body = element("h1", text.keep("Application for a garden")) + element("p", text.keep(text.prose(2, 2)))
    for part in range(1, 9):
        body += element("h2", text.keep(f"Part {part}: {text.title()}"))
        body += "<table>"
        for _ in range(6):
            cells = [" ".join(text.words(1, 3)).capitalize() + ":", " ".join(text.words(1, 2)),
                     str(text.random.randint(10, 999))]
            text.keep(" ".join(cells))
            body += "<tr>" + "".join(element("td", cell) for cell in cells) + "</tr>"
        body += "</table>" + element("p", text.keep(text.sentence()))
    return text, body, """@page{margin:20mm}body{font:10pt/1.3 Liberation Sans}h1{font-size:18pt}
        h2{font-size:12pt;margin:5mm 0 1mm}
        td{padding:0.6mm 0;width:60mm}p{margin:2mm 0}"""


def arabic():
    text = Text("arabic")
    body = ""
    for chapter in range(3):
        body += element("h1", text.keep(" ".join(text.words(3, 5, ARABIC))))
        body += "".join(element("p", text.keep(text.arabic())) for _ in range(7))
    return text, body, """@page{size:A5;margin:18mm}html{direction:rtl}
        body{font:12pt/1.6 DejaVu Sans;text-align:justify}
        h1{font-size:18pt}p{margin:0 0 3mm}"""


def japanese():
    text = Text("japanese")
    body = ""
    for chapter in range(2):
        body += element("h1", text.keep("第" + "一二"[chapter] + "章"))
        body += "".join(element("p", text.keep(text.japanese())) for _ in range(8))
    return text, body, """@page{size:A5;margin:18mm}html{writing-mode:vertical-rl}
        body{font:11pt/1.7 IPAMincho;text-align:justify}
        h1{font-size:17pt}p{margin:0;text-indent:1em}"""


DOCUMENTS = {"paper": (paper, "en"), "novel": (novel, "en"), "newspaper": (newspaper, "en"),
             "slides": (slides, "en"), "form": (form, "en"), "arabic": (arabic, "ar"), "japanese": (japanese, "ja")}


def page(name):
    """A document's HTML, and its paragraphs."""
    make, language = DOCUMENTS[name]
    text, body, style = make()
    return (f'<!DOCTYPE html><html lang="{language}"><meta charset="utf-8"><title>{name}</title><style>{style}</style>'
            f"<body>{body}</html>"), text.paragraphs
