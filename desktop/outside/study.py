"""The sample study: two fictitious persons, made from text dumps."""
import pathlib
import shutil

from .elements import tool

SAMPLE = pathlib.Path(__file__).resolve().parents[1] / "sample"
STUDIES = SAMPLE / "studies"
DISC = "disc"
EMPTY_FOLDER = "archive/Knee MR (left)/to be filed"
DICOMDIR = "disc/DICOMDIR"
TEXT_FILE = "disc/README.TXT"


def make_study(target):
    """Makes the study in the folder `target`, which does not exist yet.

    Returns the relative paths of its DICOM files, the DICOMDIR not among them.
    """
    files = []
    for source in sorted(path for path in STUDIES.rglob("*") if path.is_file()):
        place = target / source.relative_to(STUDIES)
        place.parent.mkdir(parents=True, exist_ok=True)
        if source.suffix == ".dump":
            place = place.with_suffix("")
            must_be_silent(tool("dump2dcm", "-q", source, place), place)
            files.append(place.relative_to(target))
        else:
            shutil.copyfile(source, place)
    on_disc = [file.relative_to(DISC) for file in files if file.parts[0] == DISC]
    must_be_silent(tool("dcmmkdir", "-q", "+D", "DICOMDIR", *on_disc, folder=target / DISC), target / DICOMDIR)
    (target / EMPTY_FOLDER).mkdir(parents=True)
    return files


def must_be_silent(output, place):
    if output or not place.exists():
        raise RuntimeError(f"{place} could not be made: {output.decode(errors='replace')}")


def identities():
    """The texts that tell who the two persons and those around them are."""
    lines = (SAMPLE / "identities.txt").read_text(encoding="utf-8").splitlines()
    return [line for line in lines if line and not line.startswith("#")]
