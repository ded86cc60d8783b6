"""What the player's build refuses, and what books may weigh.

Environment: FOLVERO_PLAYER, the player's source; FOLVERO_APP_FILES, what was built of it.
"""

import gzip
import json
import os
from pathlib import Path
import re
import sys
import tempfile
import unittest

PLAYER = Path(os.environ["FOLVERO_PLAYER"])
BUILT = Path(os.environ["FOLVERO_APP_FILES"])
sys.path.insert(0, str(PLAYER))
import texts  # noqa: E402


class Texts(unittest.TestCase):
    def test_every_language_has_every_text(self):
        texts.read(PLAYER)
        languages = {file.stem: json.loads(file.read_text(encoding="utf-8")) for file in PLAYER.glob("texts/*.json")}
        for language, section, name, text, fault in [
                ("de", "page", "next", None, "de.json: page.next is missing"),
                ("fr", "web", "search", "", "fr.json: web.search is missing"),
                ("nl", "web", "other", "Ander", "nl.json: web.other is not in en.json"),
                ("it", "page", "pageOf", "Pagina {0}", "it.json: page.pageOf must hold ['{0}', '{1}'], as in en.json"),
                ("es", "page", "next", "Otra | más", "es.json: page.next may not hold |"),
                ("es", "web", "search", 7, "es.json: web.search is missing"),
                ("es", "web", "hits", {"one": "{0} resultado"}, "es.json: web.hits.other is missing"),
                ("es", "web", "hits", {"other": "{0}", "lots": "{0}"},
                 "es.json: web.hits.lots is none of the forms of a text with a number"),
                ("es", "web", "hits", {"other": "{0}", "few": "unos"}, "es.json: web.hits.few must hold ['{0}'], as in"),
                ("es", "web", "noHits", {"other": "nada"}, "es.json: web.noHits.other is none of the forms"),
                ("pt_BR", None, None, None, "pt_BR.json: named by its language's code")]:
            with self.subTest(fault), tempfile.TemporaryDirectory() as folder:
                changed = json.loads(json.dumps(languages))
                own = changed.setdefault(language, changed["pt"])
                if text is None and name:
                    del own[section][name]
                elif name:
                    own[section][name] = text
                Path(folder, "texts").mkdir()
                for code, values in changed.items():
                    Path(folder, f"texts/{code}.json").write_text(json.dumps(values), encoding="utf-8")
                with self.assertRaises(SystemExit) as refused:
                    texts.table(Path(folder), "page")
                self.assertTrue(str(refused.exception).startswith(f"player/texts/{fault}"), refused.exception)


    def test_each_part_takes_its_own_section_of_other_languages(self):
        taken = {}
        for script in [*PLAYER.glob("src/**/*.js"), *PLAYER.glob("web/*.js")]:
            for table, section in re.findall(r"\blearn\((\w+), '(.*?)'\)", script.read_text(encoding="utf-8")):
                taken[section] = table
        others = texts.others(PLAYER)
        self.assertEqual(taken, {section: f"{section.upper()}_TEXTS" for section in others["de"]})
        self.assertEqual(sorted(file.stem for file in (BUILT / "Web/languages").iterdir()), sorted(others))


class Sizes(unittest.TestCase):
    def test_scripts_stay_within_their_budgets(self):
        scripts = {"web.js": (BUILT / "Web/web.js").read_text(encoding="utf-8")}
        for template in ["float", "gallery", "deck"]:
            page = (BUILT / f"Templates/{template}/index.html").read_text(encoding="utf-8")
            scripts[template] = max(re.findall("<script[^>]*>(.*?)</script>", page, re.DOTALL), key=len)
        for name, most in [("web.js", 14_500), ("float", 30_000), ("gallery", 29_000), ("deck", 28_000)]:
            size = len(gzip.compress(scripts[name].strip().encode(), 9))
            self.assertLessEqual(size, most, f"script of {name}, bytes of gzip -9")


if __name__ == "__main__":
    unittest.main()
