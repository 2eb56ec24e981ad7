#!/usr/bin/env python3
"""The pictures of the documents are opaque, and show something: a transparent one is unreadable on a
dark page, whatever it holds."""
import pathlib
import struct
import sys
import zlib

docs = pathlib.Path(__file__).resolve().parent.parent.parent / "docs"
COLOURS_WITHOUT_ALPHA = {0, 2, 3}  # grey, true colour, palette (PNG, 2nd edition, 11.2.2)


def chunks(data):
    at = 8
    while at < len(data):
        (length,) = struct.unpack(">I", data[at : at + 4])
        yield data[at + 4 : at + 8], data[at + 8 : at + 8 + length]
        at += length + 12


faults = []
pictures = sorted(docs.glob("dialog-*.png"))
for picture in pictures:
    data = picture.read_bytes()
    found = list(chunks(data))
    colour = dict(found)[b"IHDR"][9]
    if colour not in COLOURS_WITHOUT_ALPHA or any(name == b"tRNS" for name, _ in found):
        faults.append(f"{picture.name} has transparent pixels")
    pixels = zlib.decompress(b"".join(body for name, body in found if name == b"IDAT"))
    if len(set(pixels)) < 10:
        faults.append(f"{picture.name} is empty")
print("\n".join(faults) or f"{len(pictures)} pictures are opaque")
sys.exit(len(faults) > 0 or len(pictures) < 4)
