"""Frames in RLE: a header of segment offsets, then each byte of the cells as a segment of its own."""
import functools
import struct


def compressed(frame, row_bytes, cell_bytes):
    """One frame of cells in little endian. The highest byte comes first; no run crosses the end of a row."""
    segments = []
    for byte in reversed(range(cell_bytes)):
        rows = (frame[at + byte:at + row_bytes:cell_bytes] for at in range(0, len(frame), row_bytes))
        segment = b"".join(map(_row, rows))
        segments.append(segment + b"\0" * (len(segment) % 2))
    offsets, at = [], 64
    for segment in segments:
        offsets.append(at)
        at += len(segment)
    return struct.pack("<16I", len(segments), *offsets, *[0] * (15 - len(segments))) + b"".join(segments)


@functools.lru_cache(maxsize=64)
def _row(row):
    out = bytearray()
    at = 0
    while at < len(row):
        run = 1
        while run < 128 and row[at + run:at + run + 1] == row[at:at + 1]:
            run += 1
        if run > 1:
            out += bytes([257 - run, row[at]])
            at += run
            continue
        end = at + 1
        while end < len(row) and end - at < 128 and row[end:end + 1] != row[end + 1:end + 2]:
            end += 1
        out += bytes([end - at - 1]) + row[at:end]
        at = end
    return bytes(out)
