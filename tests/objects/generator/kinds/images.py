"""Images of a single frame, and multi-frame ultrasound."""
from .common import frame_of_reference, general, grey_pixels, plane

CT = "1.2.840.10008.5.1.4.1.1.2"
MR = "1.2.840.10008.5.1.4.1.1.4"
ULTRASOUND = "1.2.840.10008.5.1.4.1.1.6.1"
ULTRASOUND_MULTI_FRAME = "1.2.840.10008.5.1.4.1.1.3.1"
SECONDARY_CAPTURE = "1.2.840.10008.5.1.4.1.1.7"


def _general(instance, sop_class, modality):
    return general(instance, sop_class, modality).set(Laterality="")


def ct(instance):
    data_set = plane(frame_of_reference(_general(instance, CT, "CT"), instance), instance)
    data_set.set(ImageType=["ORIGINAL", "PRIMARY", "AXIAL"], KVP="120", AcquisitionNumber="1",
                 RescaleIntercept="-1024", RescaleSlope="1", PatientPosition="HFS")
    return grey_pixels(data_set, instance, sign=1)


def mr(instance):
    data_set = plane(frame_of_reference(_general(instance, MR, "MR"), instance), instance)
    data_set.set(ImageType=["ORIGINAL", "PRIMARY", "OTHER"], ScanningSequence="SE", SequenceVariant="NONE",
                 ScanOptions="", MRAcquisitionType="2D", RepetitionTime="500", EchoTime="10",
                 EchoTrainLength="1", PatientPosition="HFS")
    return grey_pixels(data_set, instance)


def ultrasound(instance):
    data_set = _general(instance, ULTRASOUND, "US").set(ImageType=["ORIGINAL", "PRIMARY"],
                                                        PatientOrientation="")
    return grey_pixels(data_set, instance, bits=8).set(LossyImageCompression="00")


def ultrasound_multi_frame(instance):
    data_set = _general(instance, ULTRASOUND_MULTI_FRAME, "US")
    data_set.set(ImageType=["ORIGINAL", "PRIMARY"], NumberOfFrames="3", FrameTime="40", PatientOrientation="",
                 FrameIncrementPointer=0x00181063, LossyImageCompression="00")
    return grey_pixels(data_set, instance, frames=3, bits=8)


def secondary_capture(instance):
    data_set = _general(instance, SECONDARY_CAPTURE, "OT").set(ConversionType="WSD", PatientOrientation="")
    return grey_pixels(data_set, instance, bits=8).set(BurnedInAnnotation="YES")


