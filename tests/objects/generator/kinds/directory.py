"""The DICOMDIR of a folder: its patients, studies, series and objects as linked records."""
import dataclasses

from ..dataset import DataSet
from ..encoding import EXPLICIT, Encoder
from ..files import ObjectFile
from . import Kind
from .common import NEUTRAL_DATE, NEUTRAL_TIME

DIRECTORY = Kind("DICOMDIR", None, "1.2.840.10008.1.3.10", "", False)
IN_USE = 0xFFFF
RECORD_TYPES = {"SR": "SR DOCUMENT", "RTSTRUCT": "RT STRUCTURE SET", "PR": "PRESENTATION", "DOC": "ENCAP DOC"}


@dataclasses.dataclass
class _Record:
    data_set: DataSet
    lower: dict = dataclasses.field(default_factory=dict)  # records by what tells them apart


def directory(uid, members):
    """The file for `members`, a list of (path below the folder, ObjectFile)."""
    root = {}
    for path, file in members:
        _insert(root, path, file)
    records = []
    _collect(root, records)
    data_set = DataSet(SOPClassUID=DIRECTORY.sop_class, SOPInstanceUID=uid, FileSetID="",
                       OffsetOfTheFirstDirectoryRecordOfTheRootDirectoryEntity=0, FileSetConsistencyFlag=0,
                       OffsetOfTheLastDirectoryRecordOfTheRootDirectoryEntity=0,
                       DirectoryRecordSequence=[record.data_set for record in records])
    file = _DirectoryFile(data_set)
    offsets = _offsets(file, records)
    _link(root, offsets)
    places = [offsets[id(record)] for record in root.values()]
    data_set.set(OffsetOfTheFirstDirectoryRecordOfTheRootDirectoryEntity=places[0],
                 OffsetOfTheLastDirectoryRecordOfTheRootDirectoryEntity=places[-1])
    return file


class _DirectoryFile(ObjectFile):
    """The class and instance UIDs stand in the header alone."""

    def encoded(self):
        content = DataSet()
        content.elements = {tag: element for tag, element in self.data_set.elements.items()
                            if tag not in (0x00080016, 0x00080018)}
        return self.header() + Encoder(EXPLICIT).data_set(content)


def _insert(root, path, file):
    data_set = file.data_set
    patient = root.setdefault(data_set.value("PatientID"), _Record(_patient(data_set)))
    study = patient.lower.setdefault(data_set.value("StudyInstanceUID"), _Record(_study(data_set)))
    series = study.lower.setdefault(data_set.value("SeriesInstanceUID"), _Record(_series(data_set)))
    series.lower[path] = _Record(_object(path, file))


def _record(of, record_type, **attributes):
    record = DataSet(OffsetOfTheNextDirectoryRecord=0, RecordInUseFlag=IN_USE,
                     OffsetOfReferencedLowerLevelDirectoryEntity=0, DirectoryRecordType=record_type,
                     **attributes)
    if of.value("SpecificCharacterSet") is not None:
        record.set(SpecificCharacterSet=of.value("SpecificCharacterSet"))
    return record


def _patient(of):
    return _record(of, "PATIENT", PatientName=of.value("PatientName"),
                   PatientID=of.value("PatientID") or "NONE")


def _study(of):
    return _record(of, "STUDY", StudyDate=of.value("StudyDate") or NEUTRAL_DATE,
                   StudyTime=of.value("StudyTime") or NEUTRAL_TIME,
                   StudyDescription=of.value("StudyDescription") or "",
                   StudyInstanceUID=of.value("StudyInstanceUID"),
                   StudyID=of.value("StudyID") or "0", AccessionNumber=of.value("AccessionNumber"))


def _series(of):
    return _record(of, "SERIES", Modality=of.value("Modality"),
                   SeriesInstanceUID=of.value("SeriesInstanceUID"),
                   SeriesNumber=of.value("SeriesNumber"))


def _object(path, file):
    of = file.data_set
    record_type = RECORD_TYPES.get(of.value("Modality"), "IMAGE")
    record = _record(of, record_type, ReferencedFileID=list(path.parts),
                     ReferencedSOPClassUIDInFile=of.value("SOPClassUID"),
                     ReferencedSOPInstanceUIDInFile=of.value("SOPInstanceUID"),
                     ReferencedTransferSyntaxUIDInFile=file.syntax.uid,
                     InstanceNumber=of.value("InstanceNumber"))
    for keyword in COPIED.get(record_type, []):
        if of.value(keyword) is not None:
            record.set(**{keyword: of.value(keyword) or EMPTY.get(keyword, "")})
    return record


COPIED = {"SR DOCUMENT": ["CompletionFlag", "VerificationFlag", "ContentDate", "ContentTime",
                          "ConceptNameCodeSequence"],
          "RT STRUCTURE SET": ["StructureSetLabel", "StructureSetDate", "StructureSetTime"],
          "PRESENTATION": ["ContentLabel", "ContentDescription", "ContentCreatorName",
                           "PresentationCreationDate", "PresentationCreationTime",
                           "ReferencedSeriesSequence"],
          "ENCAP DOC": ["ContentDate", "ContentTime", "DocumentTitle", "ConceptNameCodeSequence",
                        "MIMETypeOfEncapsulatedDocument"]}
EMPTY = {"ConceptNameCodeSequence": []}


def _collect(records, out):
    for record in records.values():
        out.append(record)
        _collect(record.lower, out)


def _offsets(file, records):
    """Where each record's item begins in the file; the offsets that are still to be set change no size."""
    sizes = [len(Encoder(EXPLICIT).items([record.data_set], str.encode)) for record in records]
    at = len(file.encoded()) - sum(sizes)
    offsets = {}
    for record, size in zip(records, sizes):
        offsets[id(record)] = at
        at += size
    return offsets


def _link(records, offsets):
    members = list(records.values())
    for record, follower in zip(members, members[1:]):
        record.data_set.set(OffsetOfTheNextDirectoryRecord=offsets[id(follower)])
    for record in members:
        if record.lower:
            first = next(iter(record.lower.values()))
            record.data_set.set(OffsetOfReferencedLowerLevelDirectoryEntity=offsets[id(first)])
            _link(record.lower, offsets)
