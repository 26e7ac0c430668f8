"""A writer of GIF89a files with one picture: palette indices in, bytes out."""

import struct


def pack_codes(pixels, colour_bits):
    """The LZW code stream of the pixels."""
    clear, end = 1 << colour_bits, (1 << colour_bits) + 1
    out, buffer, filled = bytearray(), 0, 0
    width, table, following = colour_bits + 1, {}, end + 1
    prefix = None

    def put(code):
        nonlocal buffer, filled
        buffer |= code << filled
        filled += width
        while filled >= 8:
            out.append(buffer & 255)
            buffer >>= 8
            filled -= 8

    put(clear)
    for pixel in pixels:
        if prefix is None:
            prefix = pixel
            continue
        known = table.get((prefix, pixel))
        if known is not None:
            prefix = known
            continue
        put(prefix)
        if following < 4096:
            table[(prefix, pixel)] = following
            # The reader is one entry behind, so the codes widen one entry later than the table.
            if following == 1 << width and width < 12:
                width += 1
            following += 1
        else:
            put(clear)
            width, table, following = colour_bits + 1, {}, end + 1
        prefix = pixel
    put(prefix)
    put(end)
    if filled:
        out.append(buffer & 255)
    return bytes(out)


def gif(width, height, palette, pixels):
    """The bytes of a GIF; palette is up to 256 (red, green, blue), pixels are rows of indices."""
    bits = max(2, (len(palette) - 1).bit_length())
    colours = list(palette) + [(0, 0, 0)] * ((1 << bits) - len(palette))
    head = b"GIF89a" + struct.pack("<HHBBB", width, height, 0x80 | 0x70 | (bits - 1), 0, 0)
    table = b"".join(bytes(colour) for colour in colours)
    image = b"," + struct.pack("<HHHHB", 0, 0, width, height, 0) + bytes([bits])
    codes = pack_codes(pixels, bits)
    blocks = b"".join(
        bytes([len(codes[i:i + 255])]) + codes[i:i + 255] for i in range(0, len(codes), 255))
    return head + table + image + blocks + b"\0;"
