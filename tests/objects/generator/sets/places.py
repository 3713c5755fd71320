"""Pairs of an original and a result that still has one value of it: a row for every place and spelling."""
import pathlib
import random

from ..dataset import tag_text
from ..dictionary import ATTRIBUTES as ATTRIBUTE_TAGS
from ..files import ObjectFile
from ..kinds import KINDS
from ..output import Output
from ..planting import Plant, mark
from ..subjects import Instance, Reference, Series, Study
from .identity import ATTRIBUTES, People
from .rows import rows
from .spots import name as named


def write(folder, seed, options):
    output = Output(folder, "places", seed)
    people = People(random.Random(f"places {seed}"))
    for number, row in enumerate(rows(), 1):
        kind = KINDS[row.kind or list(KINDS)[number % len(KINDS)]]
        _write_row(output, people, row, kind, number)
    return output.finish()


def _write_row(output, people, row, kind, number):
    person = people.person(row.spelt, row.sets[0])
    original = ObjectFile(_original(people, kind, person))
    output.add(f"ORIGINALS/{number}/image.dcm", kind, original, row=row.name)
    result = ObjectFile(_object(people, kind, Study(people.uids.new())), row.syntax, row.lengths)
    if row.sets[1]:
        result.data_set.set(SpecificCharacterSet=row.sets[1])
    path = pathlib.PurePosixPath(f"RESULT/{number}/image.dcm")
    if not row.source:
        output.add(path, kind, result, row=row.name, original=f"ORIGINALS/{number}/image.dcm")
        return
    value = person.attributes()[row.source]
    plant = Plant(row.spell(person), ATTRIBUTES[row.source], value, row.spelling, row.encoding)
    planted, path = _put(row, result, plant, path)
    output.add(path, kind, result, planted, row=row.name, original=f"ORIGINALS/{number}/image.dcm",
               source={"keyword": row.source, "tag": tag_text(ATTRIBUTE_TAGS[row.source][0]),
                       "value": plant.original})


def _original(people, kind, person):
    data_set = _object(people, kind, person.study)
    data_set.set(**person.other)
    if person.character_set:
        data_set.set(SpecificCharacterSet=person.character_set)
    mark(data_set, {value: ATTRIBUTES[keyword] for keyword, value in person.attributes().items()})
    return data_set


def _object(people, kind, study):
    uids = people.uids
    image = Reference(study.uid, uids.new(), KINDS["CT"].sop_class, uids.new())
    return kind.make(Instance(Series(uids.new(), study, uids.new()), uids.new(), references=[image]))


def _put(row, file, plant, path):
    """Plants the value. Returns what stands outside the data set, and the file's path."""
    if row.spot == "file name":
        return [named(row.spot, plant)], path.with_name(plant.text + ".dcm")
    if row.spot == "folder name":
        return [named(row.spot, plant)], path.parent.with_name(plant.text) / path.name
    outside = row.spot(file, row.encode(plant.text), plant)
    return [outside] if outside else [], path
