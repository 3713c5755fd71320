"""The kinds of objects, by names that may stand in a DICOMDIR's file ID."""
import dataclasses
import typing

from . import documents, enhanced, images, reports


@dataclasses.dataclass(frozen=True)
class Kind:
    name: str
    make: typing.Callable  # from an Instance to its DataSet
    sop_class: str
    modality: str
    has_pixels: bool = True


KINDS = {kind.name: kind for kind in [
    Kind("CT", images.ct, images.CT, "CT"),
    Kind("MR", images.mr, images.MR, "MR"),
    Kind("ENHMR", enhanced.enhanced_mr, enhanced.ENHANCED_MR, "MR"),
    Kind("US", images.ultrasound, images.ULTRASOUND, "US"),
    Kind("USMULTI", images.ultrasound_multi_frame, images.ULTRASOUND_MULTI_FRAME, "US"),
    Kind("SC", images.secondary_capture, images.SECONDARY_CAPTURE, "OT"),
    Kind("SRTEXT", reports.basic_text, reports.BASIC_TEXT, "SR", False),
    Kind("SRCOMP", reports.comprehensive, reports.COMPREHENSIVE, "SR", False),
    Kind("RTSTRUCT", documents.structure_set, documents.STRUCTURE_SET, "RTSTRUCT", False),
    Kind("GSPS", documents.presentation_state, documents.PRESENTATION_STATE, "PR", False),
    Kind("PDF", documents.encapsulated_pdf, documents.ENCAPSULATED_PDF, "DOC", False),
]}
