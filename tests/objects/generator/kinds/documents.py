"""What refers to images or comes with them: structure sets, presentation states, encapsulated documents."""
from ..dataset import DataSet
from .common import NEUTRAL_DATE, NEUTRAL_TIME, by_series, equipment, frame_of_reference, general, reference

STRUCTURE_SET = "1.2.840.10008.5.1.4.1.1.481.3"
PRESENTATION_STATE = "1.2.840.10008.5.1.4.1.1.11.1"
ENCAPSULATED_PDF = "1.2.840.10008.5.1.4.1.1.104.1"
STUDY_MANAGEMENT = "1.2.840.10008.3.1.2.3.1"


def structure_set(instance):
    data_set = equipment(frame_of_reference(general(instance, STRUCTURE_SET, "RTSTRUCT"), instance))
    frame = instance.series.frame_of_reference
    contour = DataSet(ContourGeometricType="POINT", NumberOfContourPoints="1", ContourData=["0", "0", "0"])
    roi = DataSet(ROINumber="1", ReferencedFrameOfReferenceUID=frame, ROIName="", ROIGenerationAlgorithm="")
    data_set.set(
        StructureSetLabel="NONE", StructureSetDate="", StructureSetTime="", OperatorsName="",
        ReferencedFrameOfReferenceSequence=[_frames(instance)], StructureSetROISequence=[roi],
        ROIContourSequence=[DataSet(ReferencedROINumber="1", ContourSequence=[contour])],
        RTROIObservationsSequence=[DataSet(ObservationNumber="1", ReferencedROINumber="1",
                                           RTROIInterpretedType="", ROIInterpreter="")])
    return data_set


def _frames(instance):
    frame = DataSet(FrameOfReferenceUID=instance.series.frame_of_reference)
    if instance.references:
        series = [DataSet(SeriesInstanceUID=uid, ContourImageSequence=[reference(to) for to in members])
                  for uid, members in by_series(instance.references)]
        frame.set(RTReferencedStudySequence=[
            DataSet(ReferencedSOPClassUID=STUDY_MANAGEMENT,
                    ReferencedSOPInstanceUID=instance.references[0].study,
                    RTReferencedSeriesSequence=series)])
    return frame


def presentation_state(instance):
    """Needs an image to refer to."""
    data_set = general(instance, PRESENTATION_STATE, "PR")
    area = DataSet(DisplayedAreaTopLeftHandCorner=[1, 1], PresentationSizeMode="SCALE TO FIT",
                   DisplayedAreaBottomRightHandCorner=[instance.columns, instance.rows],
                   PresentationPixelAspectRatio=["1", "1"])
    series = [DataSet(SeriesInstanceUID=uid, ReferencedImageSequence=[reference(to) for to in members])
              for uid, members in by_series(instance.references)]
    data_set.set(Laterality="", ContentLabel="NONE", ContentDescription="", ContentCreatorName="",
                 PresentationCreationDate=NEUTRAL_DATE, PresentationCreationTime=NEUTRAL_TIME,
                 ReferencedSeriesSequence=series, DisplayedAreaSelectionSequence=[area],
                 PresentationLUTShape="IDENTITY",
                 GraphicLayerSequence=[DataSet(GraphicLayer="NOTE", GraphicLayerOrder="1")],
                 GraphicAnnotationSequence=[_annotation()])
    return data_set


def _annotation():
    text = DataSet(UnformattedTextValue="Normal", AnchorPointAnnotationUnits="PIXEL", AnchorPoint=[1.0, 1.0],
                   AnchorPointVisibility="N")
    return DataSet(GraphicLayer="NOTE", TextObjectSequence=[text])


def encapsulated_pdf(instance):
    data_set = general(instance, ENCAPSULATED_PDF, "DOC")
    return data_set.set(ConversionType="WSD", ContentDate="", ContentTime="", AcquisitionDateTime="",
                        BurnedInAnnotation="YES", DocumentTitle="", ConceptNameCodeSequence=[],
                        MIMETypeOfEncapsulatedDocument="application/pdf", EncapsulatedDocument=pdf())


def pdf(text=""):
    """One page with a line of text."""
    drawing = f"BT /F1 12 Tf 10 10 Td ({text}) Tj ET".encode("latin-1")
    parts = [b"<< /Type /Catalog /Pages 2 0 R >>", b"<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
             b"<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] /Contents 4 0 R"
             b" /Resources << /Font << /F1 << /Type /Font /Subtype /Type1 /BaseFont /Helvetica >> >> >> >>",
             b"<< /Length %d >>\nstream\n%s\nendstream" % (len(drawing), drawing)]
    out, offsets = b"%PDF-1.4\n", []
    for number, part in enumerate(parts, 1):
        offsets.append(len(out))
        out += b"%d 0 obj\n%s\nendobj\n" % (number, part)
    table = b"".join(b"%010d 00000 n \n" % offset for offset in offsets)
    return out + (b"xref\n0 5\n0000000000 65535 f \n%strailer\n<< /Size 5 /Root 1 0 R >>\n"
                  b"startxref\n%d\n%%%%EOF\n"
                  % (table, len(out)))
