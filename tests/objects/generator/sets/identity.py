"""People who do not exist: each has words, numbers, dates and UIDs that no other one has."""
import dataclasses

from ..subjects import Patient, Study, Uids

# What the objects of a person carry, with the class of each value.
ATTRIBUTES = {"PatientName": "person", "PatientID": "identifier", "PatientBirthDate": "date",
              "AccessionNumber": "identifier", "PatientAddress": "place",
              "PatientTelephoneNumbers": "contact", "StationName": "device",
              "InstitutionName": "institution", "StudyDescription": "free text", "StudyDate": "date",
              "OtherPatientIDs": "identifier", "StudyID": "identifier", "PatientBirthTime": "date",
              "ReferringPhysicianName": "person", "StudyInstanceUID": "UID"}


@dataclasses.dataclass
class Person:
    family: str
    given: str
    patient: Patient
    study: Study
    other: dict  # further attributes by keyword
    character_set: object = ""

    def attributes(self):
        """All values of ATTRIBUTES by keyword."""
        return {"PatientName": self.patient.name, "PatientID": self.patient.id,
                "PatientBirthDate": self.patient.birth_date, "AccessionNumber": self.study.accession,
                "StudyDescription": self.study.description, "StudyDate": self.study.date,
                "StudyID": self.study.id, "ReferringPhysicianName": self.study.referring,
                "StudyInstanceUID": self.study.uid, **self.other}


class People:
    """Makes persons from a source of random numbers."""

    def __init__(self, source):
        self._random = source
        self._used = set()
        self.uids = Uids(source)

    def person(self, spelt="ascii", character_set=""):
        """`spelt` is "ascii", "latin" (umlauts, accents), "polish" or a script: "greek", "japanese", ..."""
        family, given = self._names(spelt)
        patient = Patient(f"{family}^{given}", self._number(9), self._date(1925, 1999), "O")
        if spelt in CHARACTERS:
            # The first component group has Latin letters, the second one those of the other script.
            latin = self._names("ascii")
            patient.name = f"{latin[0]}^{latin[1]}={patient.name}"
        short = self._unused(lambda: str(self._random.randrange(10007, 1 << 15)))
        study = Study(self.uids.new(), patient, self._date(2001, 2030), "000000", short, self._number(8),
                      f"{self._word()} {self._word().lower()}", f"{self._word()}^{self._word()}")
        hour, minute, second = (self._random.randrange(11, high) for high in (24, 60, 60))
        other = {"PatientBirthTime": f"{hour}{minute}{second}.{self._number(6)}",
                 "OtherPatientIDs": self._letters_and_digits(),
                 "PatientAddress": f"{self._word()} {self._word()}",
                 "PatientTelephoneNumbers": "+999" + self._number(9),
                 "StationName": self._word().upper() + "QX",
                 "InstitutionName": f"{self._word()} {self._word()}"}
        return Person(family, given, patient, study, other, character_set)

    def _names(self, spelt):
        if spelt == "latin":
            return f"{self._word()}ößn", f"{self._word()}üné"
        if spelt == "polish":
            return f"Ł{self._word().lower()}ska", f"Ż{self._word().lower()}"
        if spelt in ("greek", "cyrillic"):
            return self._word(spelt), self._word(spelt)
        if spelt in CHARACTERS:
            return self._characters(spelt), self._characters(spelt)
        return self._word(), self._word()

    def _unused(self, make):
        for _ in range(10000):
            value = make()
            if value not in self._used:
                self._used.add(value)
                return value
        raise ValueError("no unused value is left")

    def _word(self, script="latin"):
        """A name without two vowels in a row, which might read as a transcription."""
        consonants, vowels = LETTERS[script]
        return self._unused(lambda: "".join(
            self._random.choice(letters)
            for letters in (consonants, vowels) * 3 + (consonants,)).capitalize())

    def _characters(self, script):
        return self._unused(lambda: "".join(self._random.sample(CHARACTERS[script], 2)))

    def _number(self, digits):
        return self._unused(lambda: str(self._random.randrange(10**(digits - 1), 10**digits)))

    def _letters_and_digits(self):
        return self._unused(lambda: "".join(self._random.choices("BCDFGHJKLM", k=3)) + self._number(5))

    def _date(self, first, last):
        """Days after the 12th, so that no written form is another date's."""
        pick = self._random.randrange
        return self._unused(lambda: f"{pick(first, last)}{pick(1, 13):02}{pick(13, 29)}")


CHARACTERS = {"japanese": "橘鷹榊楠椿桜雫紬蓮翠凪暁岩渕柴峰滝浦辻窪",
              "korean": "궁갈독고황선문별샛가람누리다솜해솔빛찬들"}
LETTERS = {"latin": ("bdfgklmnprtvz", "aiou"), "greek": ("βγδζθλμξπ", "αιο"),
           "cyrillic": ("бвгджзлмп", "аио")}
