"""Whom and what an object belongs to: patient, study, series, and the objects that it refers to."""
import dataclasses


class Uids:
    """UIDs that no other generated object has, the same ones for the same source of random numbers."""

    def __init__(self, random):
        self._random = random

    def new(self):
        return f"2.25.{self._random.getrandbits(127) | 1 << 126}"


@dataclasses.dataclass
class Patient:
    name: str = ""
    id: str = ""
    birth_date: str = ""
    sex: str = ""


@dataclasses.dataclass
class Study:
    uid: str
    patient: Patient = dataclasses.field(default_factory=Patient)
    date: str = ""
    time: str = ""
    id: str = ""
    accession: str = ""
    description: str = ""
    referring: str = ""


@dataclasses.dataclass
class Series:
    uid: str
    study: Study
    frame_of_reference: str
    number: int = 1


@dataclasses.dataclass(frozen=True)
class Reference:
    """An object that another one names."""

    study: str
    series: str
    sop_class: str
    uid: str


@dataclasses.dataclass
class Instance:
    """One object to be made. Images have `columns` by `rows` cells."""

    series: Series
    uid: str
    number: int = 1
    references: list = dataclasses.field(default_factory=list)
    columns: int = 16
    rows: int = 16
