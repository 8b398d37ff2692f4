#!/usr/bin/env python3
"""Draws the icons of the forms, 16 and 32 pixels with soft edges, and writes the companion files beside them and the
program's own icon. Run it in this folder; it prints the offset of each picture, which the form names."""
import math
import struct

INK, BLUE, SKY, PALE = (60, 74, 92), (58, 123, 213), (156, 195, 245), (225, 237, 252)
GOLD, BROWN, WHITE, GREY = (243, 198, 75), (184, 130, 32), (255, 255, 255), (138, 148, 163)
RED, GREEN = (214, 72, 66), (64, 160, 84)


# A shape tells of a point, in sixteenths of the picture, whether it lies inside.
def poly(*points):
    def inside(x, y):
        result = False
        for (ax, ay), (bx, by) in zip(points, points[1:] + points[:1]):
            if (ay > y) != (by > y) and x < (bx - ax) * (y - ay) / (by - ay) + ax:
                result = not result
        return result
    return inside


def box(left, top, right, bottom):
    return lambda x, y: left <= x <= right and top <= y <= bottom


def disc(cx, cy, radius):
    return lambda x, y: math.hypot(x - cx, y - cy) <= radius


def ring(cx, cy, radius, width, part=lambda x, y: True):
    return lambda x, y: abs(math.hypot(x - cx, y - cy) - radius) <= width / 2 and part(x, y)


def line(ax, ay, bx, by, width):
    def inside(x, y):
        dx, dy = bx - ax, by - ay
        t = max(0, min(1, ((x - ax) * dx + (y - ay) * dy) / (dx * dx + dy * dy)))
        return math.hypot(x - ax - t * dx, y - ay - t * dy) <= width / 2
    return inside


def page(left, top, right, bottom, fold=3):
    """A sheet with its corner turned down: outline, paper, corner."""
    outline = poly((left, top), (right - fold, top), (right, top + fold), (right, bottom), (left, bottom))
    paper = poly((left + 1, top + 1), (right - fold - .4, top + 1), (right - 1, top + fold + .4),
                 (right - 1, bottom - 1), (left + 1, bottom - 1))
    corner = poly((right - fold - .4, top + 1), (right - 1, top + fold + .4), (right - fold - .4, top + fold + .4))
    return [(outline, INK), (paper, WHITE), (corner, SKY)]


def rows(*spans):
    return [(box(left, 2.4 + 3 * i, right, 3.8 + 3 * i), INK) for i, (left, right) in enumerate(spans)]


def arrow(mirrored, colour=BLUE):
    flip = (lambda x: 16 - x) if mirrored else (lambda x: x)
    bend = ring(8.6, 10.2, 4.6, 2, lambda x, y: y < 10.4 or x > 8.6)
    tip = poly((1, 6.6), (6.8, 3.4), (6.8, 10.4))
    return [(lambda x, y: bend(flip(x), y), colour), (lambda x, y: tip(flip(x), y), colour)]


def both(first, second):
    return lambda x, y: first(x, y) and second(x, y)


def pencil(colour):
    return [(poly((10.6, 1.6), (14.4, 5.4), (5.6, 14.2), (1.8, 10.4)), colour), (poly((1.8, 10.4), (5.6, 14.2), (.8, 15.2)), INK)]


def quill():
    """A feather on a button, for the program."""
    vane = both(disc(3.4, 3.6, 9), disc(12.6, 12.6, 9))
    return [(both(box(.5, .5, 15.5, 15.5), lambda x, y: math.hypot(max(abs(x - 8) - 5, 0), max(abs(y - 8) - 5, 0)) <= 2.5), BLUE),
            (lambda x, y: vane(x - .8, y + .6), WHITE), (line(2.9, 13.4, 11.4, 4.6, .8), SKY), (line(2.9, 13.4, 4.6, 11.6, 1), WHITE)]


ICONS = {
    'new': page(3, 1, 13, 15),
    'open': [(poly((1, 3), (6, 3), (7.5, 4.6), (14, 4.6), (14, 13.4), (1, 13.4)), BROWN),
             (poly((4, 6.6), (15.6, 6.6), (13.4, 13.4), (1.4, 13.4)), GOLD)],
    'save': [(poly((1.5, 1.5), (13, 1.5), (14.5, 3), (14.5, 14.5), (1.5, 14.5)), BLUE),
             (box(4.6, 1.5, 11, 6), PALE), (box(8.6, 2.3, 10, 5.2), BLUE), (box(3.8, 8.4, 12.2, 14.5), WHITE),
             (box(5, 10, 11, 10.8), GREY), (box(5, 12, 11, 12.8), GREY)],
    'print': [(box(3.8, 1.4, 12.2, 7), INK), (box(4.8, 2.4, 11.2, 7), WHITE), (box(1.2, 6, 14.8, 12), GREY),
              (box(3.8, 9.2, 12.2, 14.8), INK), (box(4.8, 10.2, 11.2, 13.8), WHITE), (disc(12.7, 7.7, .8), GREEN)],
    'cut': [(line(5.4, 10.6, 11.2, 1.6, 1.5), GREY), (line(10.6, 10.6, 4.8, 1.6, 1.5), INK),
            (ring(4.3, 12.2, 2, 1.3), RED), (ring(11.7, 12.2, 2, 1.3), RED)],
    'copy': page(1, 1, 9.4, 11.4, 2.6) + page(6, 4.6, 14.8, 15, 2.6),
    'paste': [(box(1.4, 2.4, 11.6, 14.4), BROWN), (box(2.6, 3.6, 10.4, 13.2), GOLD), (box(4, 1, 9, 4.2), INK),
              (box(5, 2, 8, 3.2), GREY)] + page(6.2, 6, 14.8, 15.4, 2.6),
    'undo': arrow(False),
    'redo': arrow(True),
    'find': [(line(9.8, 9.8, 13.8, 13.8, 2.6), INK), (disc(6.6, 6.6, 4.6), PALE), (ring(6.6, 6.6, 4.5, 1.6), BLUE)],
    'bold': [(box(4, 2.6, 6.4, 13.4), INK),
             (ring(7, 5.4, 2, 2, lambda x, y: x >= 7), INK), (ring(7.2, 10.4, 2.2, 2, lambda x, y: x >= 7.2), INK),
             (box(6, 2.4, 7.2, 4.4), INK), (box(6, 6.8, 7.6, 8.8), INK), (box(6, 11.6, 7.4, 13.6), INK)],
    'italic': [(line(9.4, 3.2, 6.6, 12.8, 1.7), INK), (box(7.4, 2.4, 11.6, 3.7), INK), (box(4.4, 12.3, 8.6, 13.6), INK)],
    'underline': [(box(3.6, 2, 5.4, 8), INK), (box(10.6, 2, 12.4, 8), INK),
                  (ring(8, 7.8, 3.5, 1.8, lambda x, y: y >= 7.8), INK), (box(3, 13.4, 13, 14.6), INK)],
    'left': rows((2, 14), (2, 9), (2, 14), (2, 9)),
    'centre': rows((2, 14), (4.5, 11.5), (2, 14), (4.5, 11.5)),
    'right': rows((2, 14), (7, 14), (2, 14), (7, 14)),
    'mail': [(box(1, 3, 15, 13), INK), (box(2, 4, 14, 12), WHITE), (line(2.2, 4.4, 8, 9, 1.1), BLUE),
             (line(13.8, 4.4, 8, 9, 1.1), BLUE)],
    'mail open': [(poly((1, 6), (8, .8), (15, 6), (15, 15), (1, 15)), INK), (poly((2, 6.6), (8, 2.2), (14, 6.6), (14, 14), (2, 14)), SKY),
                  (box(4, 4.6, 12, 10), WHITE), (box(5.4, 6, 10.6, 6.8), GREY), (box(5.4, 8, 10.6, 8.8), GREY),
                  (poly((2, 7.4), (8, 11.4), (14, 7.4), (14, 14), (2, 14)), PALE), (line(2.2, 7.6, 8, 11.4, 1), BLUE),
                  (line(13.8, 7.6, 8, 11.4, 1), BLUE)],
    'star': [(poly(*[(8 + r * math.sin(i * math.pi / 5), 8.4 - r * math.cos(i * math.pi / 5))
                     for i, r in enumerate([7.6, 3.3] * 5)]), BROWN),
             (poly(*[(8 + r * math.sin(i * math.pi / 5), 8.4 - r * math.cos(i * math.pi / 5))
                     for i, r in enumerate([6, 2.7] * 5)]), GOLD)],
    'ok': [(disc(8, 8, 7), GREEN), (line(4.6, 8.2, 7, 10.8, 1.8), WHITE), (line(7, 10.8, 11.6, 5.4, 1.8), WHITE)],
    'reply': arrow(False, GREEN),
    'forward': arrow(True),
    'bin': [(poly((3, 5), (13, 5), (12, 15), (4, 15)), GREY), (box(2, 3, 14, 4.6), INK), (box(6, 1.4, 10, 3), INK),
            (box(5.8, 6.6, 6.8, 13.4), WHITE), (box(9.2, 6.6, 10.2, 13.4), WHITE)],
    'flag': [(box(3, 1, 4.4, 15), INK), (poly((4.4, 1.6), (13.6, 4.8), (4.4, 8.4)), RED)],
    'inbox': [(poly((3.4, 2), (12.6, 2), (15, 8.6), (15, 14), (1, 14), (1, 8.6)), INK), (poly((4.2, 3.2), (11.8, 3.2), (13.7, 8.6), (2.3, 8.6)), PALE),
              (poly((2.1, 9.6), (5.2, 9.6), (6.4, 11.4), (9.6, 11.4), (10.8, 9.6), (13.9, 9.6), (13.9, 13), (2.1, 13)), SKY)],
    'draft': page(2, 1, 12, 15) + [(poly((12.4, 5.4), (15, 8), (9.6, 13.4), (7, 10.8)), GOLD), (poly((7, 10.8), (9.6, 13.4), (6.2, 14.2)), INK)],
    'sent': [(poly((.8, 7.4), (15.2, 1.2), (11.4, 14.4), (7.6, 10.6)), BLUE), (poly((.8, 7.4), (15.2, 1.2), (6, 9.4)), SKY),
             (poly((6, 9.4), (15.2, 1.2), (7.6, 10.6), (6, 14.2)), PALE)],
    'buttons': [(box(1, 2, 15, 7.2), INK), (box(2, 3, 14, 6.2), WHITE), (box(1, 9, 15, 14.2), BLUE), (box(2, 10, 14, 13.2), SKY),
                (box(4.4, 4.2, 11.6, 5.1), GREY), (box(4.4, 11.2, 11.6, 12.1), WHITE)],
    'pictures': [(box(1, 2, 15, 14), INK), (box(2, 3, 14, 13), PALE), (disc(11.2, 5.8, 1.7), GOLD),
                 (poly((2, 13), (6, 6.6), (9.6, 13)), GREEN), (poly((6.6, 13), (10, 9), (14, 13)), BLUE)],
    'options': [(disc(4, 4.2, 3.3), INK), (disc(4, 4.2, 2.3), WHITE), (disc(4, 4.2, 1.3), BLUE), (box(9, 3.6, 15, 4.8), GREY),
                (box(.8, 8.8, 7.2, 15.2), INK), (box(1.8, 9.8, 6.2, 14.2), WHITE), (line(2.4, 12, 3.6, 13.2, 1.2), GREEN),
                (line(3.6, 13.2, 5.8, 10.6, 1.2), GREEN), (box(9, 11.4, 15, 12.6), GREY)],
    'design': pencil(GOLD),
    'write': page(2, 1, 12, 15) + [(box(4.4, 6, 9.6, 6.8), GREY), (box(4.4, 8.4, 9.6, 9.2), GREY), (box(4.4, 10.8, 8, 11.6), GREY)],
    'gear': [(lambda x, y: math.hypot(x - 8, y - 8) <= (7 if math.cos(8 * math.atan2(y - 8, x - 8)) > 0 else 5.4), INK),
             (disc(8, 8, 4.4), GREY), (disc(8, 8, 2), WHITE)],
    'quill': quill(),
    'stop': [(disc(8, 8, 7), RED), (line(5.4, 5.4, 10.6, 10.6, 1.9), WHITE), (line(10.6, 5.4, 5.4, 10.6, 1.9), WHITE)],
}

FINE = 5  # points in a row of one pixel


def faded(colour):
    grey = sum(colour) // 3
    return (grey + 255) // 2, (grey + 255) // 2, (grey + 255) // 2


def drawn(shapes, side, fade):
    """Rows from the top of (red, green, blue, alpha), the colours not multiplied by alpha."""
    result = []
    for py in range(side):
        row = []
        for px in range(side):
            total, colours = 0, [0, 0, 0]
            for i in range(FINE * FINE):
                x = (px + (i % FINE + .5) / FINE) * 16 / side
                y = (py + (i // FINE + .5) / FINE) * 16 / side
                hit = [colour for inside, colour in shapes if inside(x, y)]
                if hit:
                    total += 1
                    for channel in range(3):
                        colours[channel] += hit[-1][channel]
            colour = tuple(c // total for c in colours) if total else (0, 0, 0)
            alpha = 255 * total // (FINE * FINE)
            row.append((faded(colour) if fade else colour) + (alpha * 3 // 4 if fade else alpha,))
        result.append(row)
    return result


def pixels(picture):
    return b''.join(struct.pack('<4B', b, g, r, a) for row in reversed(picture) for r, g, b, a in row)


def icon_image(picture):
    side = len(picture)
    mask_row = (side + 31) // 32 * 4
    mask = b''.join(
        bytes(sum((row[x + bit][3] == 0) << (7 - bit) for bit in range(8)) for x in range(0, side, 8)).ljust(mask_row, b'\0')
        for row in reversed(picture))
    return struct.pack('<IiiHHIIiiII', 40, side, side * 2, 1, 32, 0, 0, 0, 0, 0, 0) + pixels(picture) + mask


def icon(*pictures):
    images = [icon_image(picture) for picture in pictures]
    head = struct.pack('<HHH', 0, 1, len(images))
    offset = len(head) + 16 * len(images)
    for picture, image in zip(pictures, images):
        side = len(picture)
        head += struct.pack('<BBBBHHII', side, side, 0, 0, 1, 32, len(image), offset)
        offset += len(image)
    return head + b''.join(images)


def bitmap(picture):
    side = len(picture)
    info = struct.pack('<IiiHHIIiiII', 40, side, side, 1, 32, 0, 0, 0, 0, 0, 0)
    bits = pixels(picture)
    return struct.pack('<2sIHHI', b'BM', 54 + len(bits), 0, 0, 54) + info + bits


def record(data):
    """A picture object's own bytes behind their length."""
    own = b'lt\0\0' + struct.pack('<I', len(data)) + data
    return struct.pack('<I', len(own)) + own


# In the order of the file: icon, side, faded, kind.
BAR = ['new', 'open', 'save', 'print', 'cut', 'copy', 'paste', 'undo', 'redo', 'find', 'bold', 'italic', 'underline']
PICTURES = ([(name, 16, False, icon) for name in BAR] +
            [(name, 16, False, bitmap) for name in ('left', 'centre', 'right')] +
            [(name, 16, True, icon) for name in ('print', 'paste')] +
            [(name, 16, False, icon) for name in ('mail', 'mail open', 'star', 'ok', 'stop')] +
            [(name, 32, False, icon) for name in ('mail', 'mail open', 'star', 'find', 'save')] +
            [(name, 32, True, icon) for name in ('mail', 'save')])


BAR_OF_GALLERY = [(name, 16, False, icon) for name in ('buttons', 'pictures', 'options', 'mail', 'design', 'save')]
MAIL = [(name, 16, False, icon) for name in
        ('write', 'reply', 'forward', 'bin', 'flag', 'print', 'find', 'gear', 'inbox', 'draft', 'sent', 'star',
         'mail', 'mail open', 'open')]
SEND_OPTIONS = [(name, 16, False, icon) for name in ('ok', 'stop')]


def write(form, pictures):
    companion = b''
    for name, side, fade, kind in pictures:
        print('%s %04X  %s %d%s %s' % (form, len(companion), name, side, ' faded' if fade else '', kind.__name__))
        companion += record(kind(drawn(ICONS[name], side, fade)))
    with open('../%s.frx' % form, 'wb') as file:
        file.write(companion)


def main():
    write('toolbar', PICTURES)
    write('gallery', BAR_OF_GALLERY)
    write('mail', MAIL)
    write('sendoptions', SEND_OPTIONS)
    with open('../../app/gallery.ico', 'wb') as file:
        file.write(icon(*[drawn(ICONS['quill'], side, False) for side in (16, 24, 32, 48, 64)]))


if __name__ == '__main__':
    main()
