"""Files: preamble, file meta information, data set, and what may stand behind its end."""
import dataclasses
import zlib

from .dataset import DataSet
from .encoding import EXPLICIT, Encoder, Lengths, Syntax

IMPLEMENTATION = "2.25.100763247632541878936347234791027336251"


@dataclasses.dataclass
class ObjectFile:
    """What a file is made of. `meta` are elements beside those that every header has."""

    data_set: DataSet
    syntax: Syntax = EXPLICIT
    lengths: Lengths = Lengths()
    meta: DataSet = dataclasses.field(default_factory=DataSet)
    preamble: bytes = b""
    trailing: bytes = b""

    def encoded(self):
        content = Encoder(self.syntax, self.lengths).data_set(self.data_set)
        if self.syntax.deflated:
            content = _deflated(content)
        return self.header() + content + self.trailing

    def header(self):
        """Everything in front of the data set: 128 bytes, the prefix and the file meta information."""
        meta = DataSet(FileMetaInformationVersion=b"\0\1",
                       MediaStorageSOPClassUID=self.data_set.value("SOPClassUID"),
                       MediaStorageSOPInstanceUID=self.data_set.value("SOPInstanceUID"),
                       TransferSyntaxUID=self.syntax.uid, ImplementationClassUID=IMPLEMENTATION,
                       ImplementationVersionName="GENERATED_1")
        meta.elements.update(self.meta.elements)
        writer = Encoder(EXPLICIT)
        content = writer.data_set(meta)
        length = writer.data_set(DataSet(FileMetaInformationGroupLength=len(content)))
        return self.preamble.ljust(128, b"\0") + b"DICM" + length + content


def _deflated(content):
    packer = zlib.compressobj(wbits=-zlib.MAX_WBITS)
    stream = packer.compress(content) + packer.flush()
    return stream + b"\0" * (len(stream) % 2)
