"""Objects of all kinds, written in all ways: patients, studies and series with references that hold."""
import math
import pathlib
import random

from ..charsets import JAPANESE, KOREAN, LATIN_1, UTF_8
from ..dataset import UN, UN_SEQUENCE, DataSet
from ..encoding import BIG_ENDIAN, DEFLATED, EXPLICIT, IMPLICIT, JPEG, JPEG_2000, RLE, Lengths
from ..files import ObjectFile
from ..kinds import KINDS
from ..kinds.common import code
from ..kinds.directory import DIRECTORY, directory
from ..output import Output
from ..planting import mark
from ..subjects import Instance, Patient, Reference, Series, Study, Uids

SERIES_SIZE = 5
STUDY_SERIES = len(KINDS)
PATIENT_STUDIES = 2
NATIVE = [IMPLICIT, EXPLICIT, BIG_ENDIAN, DEFLATED]
SYNTAXES = [EXPLICIT, IMPLICIT, BIG_ENDIAN, RLE, DEFLATED, JPEG_2000, JPEG]
CREATOR = "GENERATED 1"
# The name's second component group is in the declared character set; Latin names come without one.
PEOPLE = [(LATIN_1, "Brückner^Jördis", ""), (UTF_8, "Łęcka^Żaneta", ""),
          (JAPANESE, "Haruyama^Akane", "=春山^茜"), ("", "Oldfield^Perpetua", ""),
          (KOREAN, "Pyeon^Seorin", "=편^서린")]
STREETS = ["Wendelsteig", "Tannhofring", "Birkweiler", "Rosshalde"]


def write(folder, seed, options):
    output = Output(folder, "mixed", seed)
    maker = _Maker(seed, options)
    members, classes = [], {}
    for number in range(options.count):
        instance = maker.next(number)
        kind = maker.kind
        file = _file(kind, instance, maker.character_set, number)
        path = maker.path(number)
        output.add(path, kind, file, patient=instance.series.study.patient.id)
        if options.directory:
            members.append((path, file))
            classes.update(identity(instance))
    if members:
        file = directory(maker.uids.new(), members)
        mark(file.data_set, classes)
        output.add("DICOMDIR", DIRECTORY, file)
    return output.finish()


class _Maker:
    """Goes through patients, studies and series. Kinds change with the series."""

    def __init__(self, seed, options):
        self._options = options
        self._random = random.Random(f"mixed {seed}")
        self.uids = Uids(self._random)
        self._columns, self._rows = image_size(options.pixels)
        self.kind = self.character_set = self._study = self._series = self._frame = None
        self._to_image = []
        self._place = (0, 0, 0)

    def next(self, number):
        if number % SERIES_SIZE == 0:
            self._begin_series(number // SERIES_SIZE)
        two_bytes = self.kind.modality != "US" and self.kind.name != "SC"
        instance = Instance(self._series, self.uids.new(), number % SERIES_SIZE + 1, list(self._to_image),
                            self._columns, self._rows if two_bytes else self._rows * 2)
        if self.kind.name == "CT" and not self._to_image:
            self._to_image = [Reference(self._study.uid, self._series.uid, self.kind.sop_class, instance.uid)]
        return instance

    def path(self, number):
        if self._options.flat:
            return pathlib.PurePosixPath(f"IM{number + 1:06}")
        patient, study, series = self._place
        return pathlib.PurePosixPath(f"P{patient}/ST{study}/SE{series}/IM{number + 1:06}")

    def _begin_series(self, number):
        study, place = divmod(number, STUDY_SERIES)
        patient, study = divmod(study, PATIENT_STUDIES)
        if place == 0:
            self._begin_study(patient, study)
        self.kind = list(KINDS.values())[place]
        self._place = (patient + 1, study + 1, place + 1)
        self._series = Series(self.uids.new(), self._study, self._frame, place + 1)

    def _begin_study(self, patient, study):
        pick = self._random.randrange
        if study == 0:
            self.character_set, latin, other = PEOPLE[patient % len(PEOPLE)]
            round_number = patient // len(PEOPLE)
            name = latin.replace("^", f"{letters(round_number)}^") + other if round_number else latin + other
            self._person = Patient(name, f"{pick(10**7, 10**8)}",
                                   f"{pick(1920, 2015)}{pick(1, 13):02}{pick(1, 29):02}",
                                   "FM"[patient % 2])
        self._frame = self.uids.new()
        self._to_image = []
        self._study = Study(self.uids.new(), self._person,
                            f"{pick(2018, 2025)}{pick(1, 13):02}{pick(1, 29):02}",
                            f"{pick(24):02}{pick(60):02}{pick(60):02}", f"S{pick(10**5, 10**6)}",
                            f"A{pick(10**7, 10**8)}", f"Follow-up {STREETS[pick(4)]} {pick(1000)}",
                            "Vandersloot^Quirin")


def letters(number):
    """0, 1, 2 ... as "", "b", "c" ..., "ba": names that differ without digits."""
    return (letters(number // 26) + chr(ord("a") + number % 26)) if number else ""


def image_size(size):
    """Columns and rows of an image whose cells of two bytes take about `size` bytes."""
    columns = min(max(8, math.isqrt(size // 2) // 2 * 2), 32768)
    return columns, max(1, min(size // (2 * columns), 65535))


def _file(kind, instance, character_set, number):
    data_set = kind.make(instance)
    if character_set:
        data_set.set(SpecificCharacterSet=character_set)
    syntax = SYNTAXES[number % len(SYNTAXES)]
    if syntax.encapsulated and not kind.has_pixels:
        syntax = NATIVE[number % len(NATIVE)]
    _nest(data_set, instance)
    _add_private(data_set, instance, syntax, number)
    mark(data_set, identity(instance))
    return ObjectFile(data_set, syntax, Lengths(sequences=number % 2 == 1, items=number % 4 > 1))


def _nest(data_set, instance):
    """The patient's name three levels down."""
    observer = DataSet(ValueType="PNAME", ConceptNameCodeSequence=[code("121029", "DCM", "Subject Name")],
                       PersonName=instance.series.study.patient.name)
    protocol = code("113010", "DCM", "Quality Issue").set(ProtocolContextSequence=[observer])
    data_set.set(RequestAttributesSequence=[DataSet(ScheduledProcedureStepID="1"),
                                            DataSet(ScheduledProtocolCodeSequence=[protocol])])


def identity(instance):
    """The class of every value that tells whose object it is."""
    series, study, patient = instance.series, instance.series.study, instance.series.study.patient
    uids = [instance.uid, series.uid, series.frame_of_reference, study.uid]
    uids += [to.uid for to in instance.references]
    return {patient.name: "person", patient.id: "identifier", patient.birth_date: "date",
            study.id: "identifier", study.date: "date", study.time: "date", study.accession: "identifier",
            study.referring: "person", study.description: "free text", **{uid: "UID" for uid in uids}}


def _add_private(data_set, instance, syntax, number):
    patient = instance.series.study.patient
    data_set.put_private(0x0029, CREATOR, 0x10, "LO", patient.id)
    data_set.put_private(0x0029, CREATOR, 0x11, "OB", bytes(range(16)))
    unknown = UN_SEQUENCE if number % 2 else UN
    if syntax is BIG_ENDIAN:
        unknown = ""
    data_set.put_private(0x0029, CREATOR, 0x12, "SQ", [DataSet(PatientName=patient.name)], unknown)
