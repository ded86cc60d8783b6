"""Words that look like those of a language, always the same ones."""

import random

SYLLABLES = "an be ca do el fi go ha in jo ka li mo na or pe qui ro sa te un ve wa xi yo za".split()


def vocabulary(count, seed, fewest):
    """Words of so many syllables at least, and of four at most."""
    source = random.Random(seed)
    return ["".join(source.choices(SYLLABLES, k=source.randint(fewest, 4))) for _ in range(count)]


def few_are_common(source, values):
    """As in texts, few values are common and most are rare."""
    return values[int(len(values) ** source.random()) - 1]
