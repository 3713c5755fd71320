"""Objects of every kind that name nobody: empty values and dummies, and UIDs that only these objects have."""
import random
from pathlib import PurePosixPath

from ..encoding import BIG_ENDIAN, DEFLATED, EXPLICIT, IMPLICIT, JPEG, JPEG_2000, RLE, Lengths
from ..files import ObjectFile
from ..kinds import KINDS
from ..kinds.directory import DIRECTORY, directory
from ..output import Output
from ..subjects import Instance, Reference, Series, Study, Uids

SYNTAXES = [IMPLICIT, EXPLICIT, BIG_ENDIAN, DEFLATED, RLE, JPEG, JPEG_2000]


def write(folder, seed, options):
    output = Output(folder, "plain", seed)
    uids = Uids(random.Random(f"plain {seed}"))
    study = Study(uids.new())
    frame = uids.new()
    series = {name: Series(uids.new(), study, frame, number) for number, name in enumerate(KINDS, 1)}
    image = Instance(series["CT"], uids.new())
    to_image = Reference(study.uid, series["CT"].uid, KINDS["CT"].sop_class, image.uid)
    members = []
    for name, kind in KINDS.items():
        instance = image if name == "CT" else Instance(series[name], uids.new(), references=[to_image])
        members.append((PurePosixPath(kind.name, "IM000001"), kind, ObjectFile(kind.make(instance))))
    for number, syntax in enumerate(SYNTAXES, 2):
        instance = Instance(series["CT"], uids.new(), number)
        lengths = Lengths(sequences=number % 2 == 0, items=number % 4 < 2)
        file = ObjectFile(KINDS["CT"].make(instance), syntax, lengths)
        members.append((PurePosixPath(f"CT/IM{number:06}"), KINDS["CT"], file))
    for path, kind, file in members:
        output.add(path, kind, file)
    output.add("DICOMDIR", DIRECTORY, directory(uids.new(), [(path, file) for path, _, file in members]))
    return output.finish()
