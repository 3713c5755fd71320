"""The modules that objects of several kinds have."""
from ..dataset import DataSet, Pixels

NEUTRAL_DATE = "19000101"
NEUTRAL_TIME = "000000"


def general(instance, sop_class, modality):
    """Patient, study, series, equipment and the object itself."""
    study = instance.series.study
    patient = study.patient
    data_set = DataSet(
        SOPClassUID=sop_class, SOPInstanceUID=instance.uid, Modality=modality, StudyInstanceUID=study.uid,
        SeriesInstanceUID=instance.series.uid, SeriesNumber=str(instance.series.number),
        InstanceNumber=str(instance.number), StudyDate=study.date, StudyTime=study.time, StudyID=study.id,
        AccessionNumber=study.accession, ReferringPhysicianName=study.referring, PatientName=patient.name,
        PatientID=patient.id, PatientBirthDate=patient.birth_date, PatientSex=patient.sex,
        Manufacturer="")
    if study.description:
        data_set.set(StudyDescription=study.description)
    return data_set


def equipment(data_set):
    """What enhanced objects and structure sets must know of the device."""
    return data_set.set(Manufacturer="none", ManufacturerModelName="none", DeviceSerialNumber="0",
                        SoftwareVersions="0")


def frame_of_reference(data_set, instance):
    return data_set.set(FrameOfReferenceUID=instance.series.frame_of_reference, PositionReferenceIndicator="")


def plane(data_set, instance):
    return data_set.set(PixelSpacing=["1", "1"], ImageOrientationPatient=["1", "0", "0", "0", "1", "0"],
                        ImagePositionPatient=["0", "0", str(instance.number)], SliceThickness="1")


def code(value, scheme, meaning):
    return DataSet(CodeValue=value, CodingSchemeDesignator=scheme, CodeMeaning=meaning)


def reference(to):
    return DataSet(ReferencedSOPClassUID=to.sop_class, ReferencedSOPInstanceUID=to.uid)


def by_series(references):
    """The references grouped by their series: a list of (series UID, references)."""
    groups = {}
    for to in references:
        groups.setdefault(to.series, []).append(to)
    return list(groups.items())


def grey_pixels(data_set, instance, frames=1, bits=16, sign=0):
    """Cells of shades of grey: rows repeat, so that large images cost little to make."""
    data_set.set(SamplesPerPixel=1, PhotometricInterpretation="MONOCHROME2", Rows=instance.rows,
                 Columns=instance.columns, BitsAllocated=bits, BitsStored=bits, HighBit=bits - 1,
                 PixelRepresentation=sign)
    cell_bytes = bits // 8
    row_bytes = instance.columns * cell_bytes
    tile = [_row(row_bytes, instance.number * 7 + shade) for shade in range(5)]
    rows = b"".join(tile[row % 5] for row in range(instance.rows))
    data_set.put(0x7FE00010, "OW", Pixels([rows] * frames, row_bytes, cell_bytes))
    return data_set


def _row(size, shade):
    """Ramps and flat stretches, never text."""
    ramp = bytes([(shade + step) % 16 for step in range(32)] + [shade % 16] * 32)
    return (ramp * (size // len(ramp) + 1))[:size]
