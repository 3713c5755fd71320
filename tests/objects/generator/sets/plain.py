"""Objects of every kind that name nobody: empty values and dummies, and UIDs that only these objects have."""
import random

from ..encoding import BIG_ENDIAN, DEFLATED, EXPLICIT, IMPLICIT, JPEG, JPEG_2000, RLE, Lengths
from ..files import ObjectFile
from ..kinds import KINDS, Kind
from ..kinds.directory import STORAGE_DIRECTORY, directory
from ..output import Output
from ..subjects import Instance, Reference, Series, Study, Uids

SYNTAXES = [IMPLICIT, EXPLICIT, BIG_ENDIAN, DEFLATED, RLE, JPEG, JPEG_2000]
DIRECTORY = Kind("DICOMDIR", None, STORAGE_DIRECTORY, "")


def write(folder, seed, options):
    output = Output(folder, "plain", seed)
    uids = Uids(random.Random(f"plain {seed}"))
    study = Study(uids.new())
    frame = uids.new()
    series = {name: Series(uids.new(), study, frame, number) for number, name in enumerate(KINDS, 1)}
    image = Instance(series["CT"], uids.new())
    to_image = Reference(study.uid, series["CT"].uid, KINDS["CT"].sop_class, image.uid)
    for kind in KINDS.values():
        instance = image if kind.name == "CT" else Instance(series[kind.name], uids.new(),
                                                            references=[to_image])
        output.add(f"{kind.name}/IM000001", kind, ObjectFile(kind.make(instance)))
    for number, syntax in enumerate(SYNTAXES, 2):
        instance = Instance(series["CT"], uids.new(), number)
        lengths = Lengths(sequences=number % 2 == 0, items=number % 4 < 2)
        output.add(f"CT/IM{number:06}", KINDS["CT"], ObjectFile(KINDS["CT"].make(instance), syntax, lengths))
    output.add("DICOMDIR", DIRECTORY, directory(uids.new(), output.members))
    return output.finish()
