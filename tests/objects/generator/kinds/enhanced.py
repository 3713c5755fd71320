"""Enhanced MR: several frames, with what belongs to each of them in functional groups."""
from ..dataset import DataSet
from .common import NEUTRAL_DATE, NEUTRAL_TIME, code, equipment, frame_of_reference, general, grey_pixels

ENHANCED_MR = "1.2.840.10008.5.1.4.1.1.4.1"
FRAMES = 2
PIXELS = {"PixelPresentation": "MONOCHROME", "VolumetricProperties": "VOLUME",
          "VolumeBasedCalculationTechnique": "NONE", "ComplexImageComponent": "MAGNITUDE",
          "AcquisitionContrast": "UNKNOWN"}


def enhanced_mr(instance):
    data_set = equipment(frame_of_reference(general(instance, ENHANCED_MR, "MR"), instance))
    data_set.set(ImageType=["DERIVED", "PRIMARY", "VOLUME", "NONE"], ContentDate=NEUTRAL_DATE,
                 ContentTime=NEUTRAL_TIME, NumberOfFrames=str(FRAMES), PatientPosition="HFS",
                 BurnedInAnnotation="NO",
                 LossyImageCompression="00", PresentationLUTShape="IDENTITY", AcquisitionContextSequence=[],
                 ContentQualification="RESEARCH", ApplicableSafetyStandardAgency="IEC", **PIXELS)
    data_set.set(SharedFunctionalGroupsSequence=[_shared()],
                 PerFrameFunctionalGroupsSequence=[_frame(number) for number in range(1, FRAMES + 1)])
    _dimensions(data_set, instance)
    return grey_pixels(data_set, instance, frames=FRAMES)


def _shared():
    return DataSet(
        PixelMeasuresSequence=[DataSet(SliceThickness="1", PixelSpacing=["1", "1"])],
        PlaneOrientationSequence=[DataSet(ImageOrientationPatient=["1", "0", "0", "0", "1", "0"])],
        FrameAnatomySequence=[DataSet(FrameLaterality="U",
                                      AnatomicRegionSequence=[code("12738006", "SCT", "Brain")])],
        PixelValueTransformationSequence=[DataSet(RescaleIntercept="0", RescaleSlope="1", RescaleType="US")],
        MRImageFrameTypeSequence=[DataSet(FrameType=["DERIVED", "PRIMARY", "VOLUME", "NONE"], **PIXELS)])


def _frame(number):
    return DataSet(
        FrameContentSequence=[DataSet(StackID="1", InStackPositionNumber=number,
                                      DimensionIndexValues=[1, number])],
        PlanePositionSequence=[DataSet(ImagePositionPatient=["0", "0", str(number)])])


def _dimensions(data_set, instance):
    uid = instance.series.frame_of_reference
    data_set.set(
        DimensionOrganizationSequence=[DataSet(DimensionOrganizationUID=uid)],
        DimensionIndexSequence=[
            DataSet(DimensionIndexPointer=pointer, FunctionalGroupPointer=0x00209111,
                    DimensionOrganizationUID=uid)
            for pointer in (0x00209056, 0x00209057)])
