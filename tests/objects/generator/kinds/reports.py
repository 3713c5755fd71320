"""Structured reports: a tree of content items of every kind that can name somebody."""
from ..dataset import DataSet
from .common import NEUTRAL_DATE, NEUTRAL_TIME, by_series, code, general, reference

BASIC_TEXT = "1.2.840.10008.5.1.4.1.1.88.11"
COMPREHENSIVE = "1.2.840.10008.5.1.4.1.1.88.33"
FINDING = ("121071", "DCM", "Finding")
OBSERVER = ("121008", "DCM", "Person Observer Name")
OBSERVER_UID = ("121012", "DCM", "Device Observer UID")
STUDY_DATE = ("111060", "DCM", "Study Date")
STUDY_TIME = ("111061", "DCM", "Study Time")
REPORT = ("126000", "DCM", "Imaging Measurement Report")
SECTION = ("121070", "DCM", "Findings")
SOURCE = ("121324", "DCM", "Source Image")


def basic_text(instance):
    return _report(instance, BASIC_TEXT)


def comprehensive(instance):
    data_set = _report(instance, COMPREHENSIVE)
    count = item("CONTAINS", "NUM", ("111001", "DCM", "Algorithm Name"))
    count.set(ConceptNameCodeSequence=[code("121401", "DCM", "Derivation")], MeasuredValueSequence=[
        DataSet(NumericValue="1", MeasurementUnitsCodeSequence=[code("1", "UCUM", "no units")])])
    data_set.value("ContentSequence").append(count)
    return data_set


def item(relationship, value_type, name, **value):
    return DataSet(RelationshipType=relationship, ValueType=value_type, ConceptNameCodeSequence=[code(*name)],
                   **value)


def _report(instance, sop_class):
    data_set = general(instance, sop_class, "SR")
    data_set.set(ContentDate=NEUTRAL_DATE, ContentTime=NEUTRAL_TIME, CompletionFlag="COMPLETE",
                 VerificationFlag="UNVERIFIED", ReferencedPerformedProcedureStepSequence=[],
                 PerformedProcedureCodeSequence=[], ValueType="CONTAINER", ContinuityOfContent="SEPARATE",
                 ConceptNameCodeSequence=[code(*REPORT)], ContentSequence=_tree(instance))
    if instance.references:
        data_set.set(CurrentRequestedProcedureEvidenceSequence=[_evidence(instance.references)])
    return data_set


def _tree(instance):
    patient = instance.series.study.patient
    leaves = [item("CONTAINS", "TEXT", FINDING, TextValue="Normal"),
              item("CONTAINS", "CODE", FINDING, ConceptCodeSequence=[code("17621005", "SCT", "Normal")])]
    leaves += [DataSet(RelationshipType="CONTAINS", ValueType="IMAGE",
                       ConceptNameCodeSequence=[code(*SOURCE)],
                       ReferencedSOPSequence=[reference(to)]) for to in instance.references]
    observer = item("HAS OBS CONTEXT", "PNAME", OBSERVER, PersonName=patient.name or "Anonymous")
    return [observer,
            item("HAS OBS CONTEXT", "UIDREF", OBSERVER_UID, UID=instance.series.uid),
            item("CONTAINS", "DATE", STUDY_DATE, Date=instance.series.study.date or NEUTRAL_DATE),
            item("CONTAINS", "TIME", STUDY_TIME, Time=NEUTRAL_TIME),
            item("CONTAINS", "CONTAINER", SECTION, ContinuityOfContent="SEPARATE", ContentSequence=leaves)]


def _evidence(references):
    series = [DataSet(SeriesInstanceUID=uid, ReferencedSOPSequence=[reference(to) for to in members])
              for uid, members in by_series(references)]
    return DataSet(StudyInstanceUID=references[0].study, ReferencedSeriesSequence=series)
