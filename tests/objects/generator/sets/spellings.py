"""How a person's name, or a date, is written elsewhere than in its own attribute."""
import datetime
import unicodedata

PLAIN = {"ö": "o", "ü": "u", "é": "e", "ß": "ss"}
TRANSCRIBED = {"ö": "oe", "ü": "ue", "é": "e", "ß": "ss"}

# Functions of family and given name.
NAMES = {
    "as it was": lambda family, given: f"{family}^{given}",
    "given name first": lambda family, given: f"{given}^{family}",
    "comma": lambda family, given: f"{family}, {given}",
    "blank": lambda family, given: f"{given} {family}",
    "underscore": lambda family, given: f"{family}_{given}",
    "hyphen": lambda family, given: f"{given}-{family}",
    "dot": lambda family, given: f"{given}.{family}",
    "middle name and title": lambda family, given: f"{family}^{given}^Q^Dr.",
    "within a sentence": lambda family, given: f"seen with {given} {family} today",
    "capitals": lambda family, given: f"{family}^{given}".upper(),
    "small letters": lambda family, given: f"{family}^{given}".lower(),
    "family name alone": lambda family, given: family,
    "given name alone": lambda family, given: given,
}
# For names with umlauts and accents.
LETTERS = {
    "without accents": lambda family, given: _replaced(f"{family}^{given}", PLAIN),
    "transcribed": lambda family, given: _replaced(f"{family}^{given}", TRANSCRIBED),
    "capitals without accents": lambda family, given: _replaced(f"{family}^{given}", PLAIN).upper(),
    "capitals transcribed": lambda family, given: _replaced(f"{family}^{given}", TRANSCRIBED).upper(),
    "transcribed, given name first": lambda family, given: _replaced(f"{given} {family}", TRANSCRIBED),
}
DECOMPOSED = "accents as characters of their own"


def decomposed(family, given):
    return unicodedata.normalize("NFD", f"{family}^{given}")


def _replaced(text, letters):
    return text.translate(str.maketrans(letters))


# strftime's forms by how they read on 31 January 1970.
DATES = {"1970-01-31": "%Y-%m-%d", "31.01.1970": "%d.%m.%Y", "01/31/1970": "%m/%d/%Y",
         "31/01/1970": "%d/%m/%Y",
         "1970/01/31": "%Y/%m/%d", "31 Jan 1970": "%d %b %Y", "31-JAN-1970": "%d-%b-%Y",
         "31 January 1970": "%d %B %Y",
         "January 31, 1970": "%B %d, %Y", "19700131 in a sentence": "on %Y%m%d at home"}


def date(text, form):
    """A value of VR DA in one of the forms of DATES."""
    written = datetime.datetime.strptime(text, "%Y%m%d").strftime(DATES[form])
    return written.upper() if form.isupper() else written
