"""Damaged documents through the whole program."""

import random
import re

from .bench import DOCUMENT, DONE, INCOMPLETE, PASSWORD, faults_of, files_of, gaps_in, leftovers_in, run

MOST_BYTES = 300_000
PAGES = 2
# A page is given up after 60 seconds, or 70 where MuPDF ignores that.
MOST_SECONDS = PAGES * 70 + 10
MADE_TO_LOOP = "loop.pdf"
ODD_NUMBERS = [b"0", b"-1", b"1", b"65536", b"2147483648", b"-2147483648", b"99999999999999999999", b"1e30", b"0.00001"]
NAMES = [b"/Kids", b"/Parent", b"/Type", b"/Page", b"/Pages", b"/Length", b"/Filter", b"/FlateDecode", b"/DCTDecode",
         b"/Font", b"/XObject", b"/Form", b"/Image", b"/Contents", b"/Resources", b"/MediaBox", b"/Annots", b"/Root"]
OBJECT = re.compile(rb"\d+ \d+ obj\b.*?endobj", re.S)


def flip_bytes(data, chance):
    for _ in range(chance.choice((1, 4, 16, 64))):
        data[chance.randrange(len(data))] ^= 1 << chance.randrange(8)


def move_block(data, chance):
    length = chance.randrange(1, max(2, min(len(data) // 4, 4000)))
    start = chance.randrange(len(data) - length + 1)
    block = data[start:start + length]
    del data[start:start + length]
    at = chance.randrange(len(data) + 1)
    data[at:at] = block


def truncate(data, chance):
    del data[chance.randrange(len(data)):]


def replace_some(data, chance, pattern, values):
    for _ in range(chance.choice((1, 1, 3))):
        found = list(re.finditer(pattern, data))
        if found:
            start, end = chance.choice(found).span()
            data[start:end] = chance.choice(values)


def change_numbers(data, chance):
    values = [*ODD_NUMBERS, b"%d" % chance.randrange(99)]
    replace_some(data, chance, rb"(?<=[ \[/\n])-?\d+(\.\d+)?(?=[ \]/\n>])", values)


def change_names(data, chance):
    replace_some(data, chance, rb"/[A-Z][A-Za-z0-9]+", NAMES)


def change_lengths(data, chance):
    replace_some(data, chance, rb"(?<=/Length )\d+|(?<=/Width )\d+|(?<=/Height )\d+|(?<=/Count )\d+", ODD_NUMBERS)


def change_references(data, chance):
    replace_some(data, chance, rb"\d+(?= 0 R)", [b"%d" % chance.randrange(40)])


def swap_objects(data, chance):
    found = [match.span() for match in OBJECT.finditer(data)]
    if len(found) > 1:
        (first, end_of_first), (second, end_of_second) = sorted(chance.sample(found, 2))
        bodies = [re.sub(rb"^\d+ \d+", b"", bytes(data[start:end]))
                  for start, end in ((first, end_of_first), (second, end_of_second))]
        heads = [re.match(rb"\d+ \d+", data[start:])[0] for start in (first, second)]
        data[second:end_of_second] = heads[1] + bodies[0]
        data[first:end_of_first] = heads[0] + bodies[1]


MUTATIONS = [flip_bytes, move_block, truncate, change_numbers, change_names, change_lengths, change_references,
             swap_objects]


def documents_in(folders):
    found = [path for folder in folders for path in sorted(folder.rglob("*.pdf")) if path.is_file()]
    return [path for path in found if 100 < path.stat().st_size <= MOST_BYTES and path.name != MADE_TO_LOOP]


def mutate(document, seed):
    """The bytes of a document with one to three mutations: the same for the same seed."""
    chance = random.Random(seed)
    data = bytearray(document)
    kinds = [chance.choice(MUTATIONS) for _ in range(chance.choice((1, 1, 2, 3)))]
    for kind in kinds:
        if data:
            kind(data, chance)
    return bytes(data), "+".join(kind.__name__ for kind in kinds)


def check_mutated(context, tally):
    """Publishes one mutated document after the other into a folder, over the last one that gave a book."""
    documents = documents_in(context.documents)
    work = context.folder("mutated")
    mutated, book, earlier = work / "mutated.pdf", work / "book", {}
    for number in range(context.first, context.first + context.count):
        source = documents[number % len(documents)]
        data, kinds = mutate(source.read_bytes(), number)
        mutated.write_bytes(data)
        result = run([str(context.program), "publish", "--quiet", "--type", "web", "--jobs", "1",
                      "--pages", f"1-{PAGES}", str(mutated), str(book)], seconds=2 * MOST_SECONDS)
        wrong = faults_of(result, (DONE, INCOMPLETE, DOCUMENT, PASSWORD))
        if result.seconds > MOST_SECONDS:
            wrong.add(f"more than {MOST_SECONDS} s")
        files = files_of(book) if book.exists() else {}
        if result.code in (DONE, INCOMPLETE):
            wrong |= {"incomplete book"} if gaps_in(book) else set()
        elif files != earlier:
            wrong.add("earlier book changed")
        if leftovers_in(book):
            wrong.add("left behind")
        earlier = files
        tally.add(f"{number}: {source.name} {kinds}: code {result.code}, {result.seconds:.1f} s: "
                  f"{result.errors[:300]!r}", wrong)


EXPERIMENTS = {"mutated": check_mutated}
