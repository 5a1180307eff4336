#!/usr/bin/python3
"""Writes the SVG sources of every panel image into resources/svg/<Dir>/<name>.svg.

The SVG files are committed too; run this only after changing a drawing here, then
run scripts/render-images to refresh the committed rasters.

All artwork is drawn from scratch for this panel in one flat style:
  slate #22313F glyphs, furnace orange #E8702A, green #2E9E5B, amber #E0A100,
  red #D64545, blue #2B7BB9, light #F4F6F8 / #FFFFFF, mid grey #8A97A6.
"""

import math
import os

HERE = os.path.dirname(os.path.abspath(__file__))

SLATE = "#22313F"
ORANGE = "#E8702A"
GREEN = "#2E9E5B"
AMBER = "#E0A100"
RED = "#D64545"
BLUE = "#2B7BB9"
LIGHT = "#F4F6F8"
WHITE = "#FFFFFF"
GREY = "#8A97A6"
# Derived tints used only in the large illustrations.
BG = "#EEF2F5"        # calm background of the full-screen pictures
STAGE = "#E1E7ED"     # soft stage ellipse behind the subject
TRAY = "#C3CDD7"
TRAY_SIDE = "#9AA8B7"
TRAY_IN = "#D8DFE6"
WALL = "#D3DAE2"

SW = 9  # glyph stroke width at 96 px
FONT = "DejaVu Sans, Liberation Sans, sans-serif"


def svg(w, h, body, vw=None, vh=None):
    vw = w if vw is None else vw
    vh = h if vh is None else vh
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{w}" height="{h}" '
            f'viewBox="0 0 {vw} {vh}">\n{body}\n</svg>\n')


def stroke(color, width=SW, extra=""):
    return (f'fill="none" stroke="{color}" stroke-width="{width}" '
            f'stroke-linecap="round" stroke-linejoin="round"{extra}')


def write(rel, text):
    path = os.path.join(HERE, rel)
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "w", encoding="utf-8") as f:
        f.write(text)


def icon(body):
    return svg(96, 96, body)


# ---------------------------------------------------------------- shared glyph parts
def check_path(color, width):
    return f'<path d="M22 50 L40 68 L75 30" {stroke(color, width)}/>'


def cross_path(color, width, a=28, b=68):
    return (f'<path d="M{a} {a} L{b} {b} M{b} {a} L{a} {b}" {stroke(color, width)}/>')


def filled_disc(color, r=42):
    return f'<circle cx="48" cy="48" r="{r}" fill="{color}"/>'


def exclamation(color, cx, top, bottom, w, dot_r):
    return (f'<rect x="{cx - w / 2}" y="{top}" width="{w}" height="{bottom - top}" '
            f'rx="{w / 2}" fill="{color}"/>'
            f'<circle cx="{cx}" cy="{bottom + dot_r * 2.2}" r="{dot_r}" fill="{color}"/>')


def info_i(color, cx, dot_cy, dot_r, top, bottom, w):
    return (f'<circle cx="{cx}" cy="{dot_cy}" r="{dot_r}" fill="{color}"/>'
            f'<rect x="{cx - w / 2}" y="{top}" width="{w}" height="{bottom - top}" '
            f'rx="{w / 2}" fill="{color}"/>')


def predry_glyph(wave=ORANGE, drop=BLUE, tray=SLATE):
    """Restoration drying in rising warm air: a tray, heat waves and a drop."""
    waves = ""
    for x in (30, 66):
        waves += (f'<path d="M{x} 64 C{x - 9} 56 {x + 9} 50 {x} 42 '
                  f'C{x - 9} 34 {x + 9} 28 {x} 20" {stroke(wave, 8)}/>')
    # water drop in the middle, tip up
    d = ("M48 16 C48 16 36 32 36 40 A12 12 0 0 0 60 40 C60 32 48 16 48 16 Z")
    return (f'<rect x="12" y="74" width="72" height="10" rx="5" fill="{tray}"/>'
            + waves
            + f'<path d="{d}" fill="{drop}"/>')


def badge(text, cx=66, cy=66, r=26, fill=SLATE, size=28):
    return (f'<circle cx="{cx}" cy="{cy}" r="{r + 3.5}" fill="{WHITE}"/>'
            f'<circle cx="{cx}" cy="{cy}" r="{r}" fill="{fill}"/>'
            f'<text x="{cx}" y="{cy + size * 0.36}" text-anchor="middle" '
            f'font-family="{FONT}" font-weight="bold" font-size="{size}" '
            f'fill="{WHITE}">{text}</text>')


def clock_badge(cx=68, cy=68, r=23):
    return (f'<circle cx="{cx}" cy="{cy}" r="{r + 3.5}" fill="{WHITE}"/>'
            f'<circle cx="{cx}" cy="{cy}" r="{r}" fill="{SLATE}"/>'
            f'<circle cx="{cx}" cy="{cy}" r="{r - 6}" fill="{WHITE}"/>'
            f'<path d="M{cx} {cy - 10} V{cy} L{cx + 7} {cy + 5}" {stroke(SLATE, 4.5)}/>')


def lift_door():
    """Furnace head with the chamber opening (top) and the door plate with the hearth (bottom)."""
    return (
        # furnace head with the chamber opening underneath
        f'<path d="M8 12 A6 6 0 0 1 14 6 H54 A6 6 0 0 1 60 12 V36 H48 V26 H20 V36 H8 Z" '
        f'fill="{SLATE}"/>'
        # door plate carrying the hearth
        f'<rect x="10" y="78" width="48" height="10" rx="4" fill="{SLATE}"/>'
        f'<rect x="20" y="64" width="28" height="14" rx="3" fill="{GREY}"/>')


# ---------------------------------------------------------------- icons (96 x 96)
def icons():
    out = {}
    out["Icons/back"] = icon(f'<path d="M76 48 H22 M44 25 L21 48 L44 71" {stroke(SLATE)}/>')
    out["Icons/next"] = icon(f'<path d="M20 48 H74 M52 25 L75 48 L52 71" {stroke(SLATE)}/>')
    out["Icons/check"] = icon(check_path(GREEN, 11))
    out["Icons/abbrechen"] = icon(cross_path(RED, 11, 26, 70))
    out["Icons/processCheck"] = icon(filled_disc(GREEN) + check_path(WHITE, 9))
    out["Icons/processFail"] = icon(filled_disc(RED) + cross_path(WHITE, 9, 32, 64))
    out["Icons/processMark"] = icon(
        f'<circle cx="48" cy="48" r="38" {stroke(GREY, 8)}/>'
        + "".join(f'<circle cx="{x}" cy="48" r="5.5" fill="{GREY}"/>' for x in (31, 48, 65)))

    # Lift door: furnace underside on top, door plate with the hearth below, arrow between.
    def door(up):
        arrow = ("M72 64 V30 M61 41 L72 30 L83 41" if up else
                 "M72 30 V64 M61 53 L72 64 L83 53")
        return icon(lift_door() + f'<path d="{arrow}" {stroke(ORANGE)}/>')
    out["Door/Door_Up"] = door(True)
    out["Door/Door_Down"] = door(False)

    out["Play/Play"] = icon(
        f'<circle cx="48" cy="48" r="40" {stroke(ORANGE, 8)}/>'
        f'<path d="M39 31 L66 48 L39 65 Z" fill="{ORANGE}" stroke="{ORANGE}" '
        f'stroke-width="7" stroke-linejoin="round"/>')
    out["Stop/Stop"] = icon(
        f'<circle cx="48" cy="48" r="40" {stroke(RED, 8)}/>'
        f'<rect x="31" y="31" width="34" height="34" rx="6" fill="{RED}"/>')

    # Argon: gas bottle with a valve and two gas bubbles.
    out["Play/Gas"] = icon(
        f'<path d="M30 16 H54" {stroke(SLATE, 7)}/>'
        f'<rect x="37" y="18" width="10" height="12" rx="2" fill="{SLATE}"/>'
        f'<rect x="22" y="28" width="40" height="60" rx="16" fill="{BLUE}"/>'
        f'<rect x="22" y="50" width="40" height="8" fill="{WHITE}" opacity="0.85"/>'
        f'<circle cx="72" cy="24" r="6" {stroke(BLUE, 5)}/>'
        f'<circle cx="80" cy="44" r="8" {stroke(BLUE, 5)}/>')

    # Thermometer: slate outline, orange column.
    out["Play/temp"] = icon(
        f'<rect x="38.5" y="28" width="7" height="44" rx="3.5" fill="{ORANGE}"/>'
        f'<circle cx="42" cy="72" r="10" fill="{ORANGE}"/>'
        f'<path d="M34 60 V20 A8 8 0 0 1 50 20 V60 A15 15 0 1 1 34 60 Z" {stroke(SLATE, 7)}/>'
        f'<path d="M62 22 H72 M62 36 H72 M62 50 H72" {stroke(SLATE, 6)}/>')

    # Hourglass: remaining / end time.
    out["Play/time"] = icon(
        f'<path d="M40 68 L56 68 L48 56 Z" fill="{ORANGE}" stroke="{ORANGE}" '
        f'stroke-width="6" stroke-linejoin="round"/>'
        f'<path d="M42 31 H54 L48 38 Z" fill="{ORANGE}" stroke="{ORANGE}" '
        f'stroke-width="4" stroke-linejoin="round"/>'
        f'<path d="M22 12 H74 M22 84 H74" {stroke(SLATE)}/>'
        f'<path d="M30 14 C30 36 43 42 43 48 C43 54 30 60 30 82 '
        f'M66 14 C66 36 53 42 53 48 C53 54 66 60 66 82" {stroke(SLATE, 7)}/>')

    # Delayed start: clock with a small start badge.
    out["Timer/timer"] = icon(
        f'<circle cx="42" cy="46" r="32" {stroke(SLATE, 8)}/>'
        f'<path d="M42 26 V46 L56 54" {stroke(SLATE, 7)}/>'
        f'<circle cx="73" cy="73" r="21" fill="{WHITE}"/>'
        f'<circle cx="73" cy="73" r="17" fill="{ORANGE}"/>'
        f'<path d="M68 64 L81 73 L68 82 Z" fill="{WHITE}" stroke="{WHITE}" '
        f'stroke-width="3" stroke-linejoin="round"/>')

    out["Info/released"] = icon(filled_disc(BLUE) + info_i(WHITE, 48, 27, 6.5, 39, 72, 12))

    # Pre-drying
    small = '<g transform="translate(-2 -4) scale(0.8)">{}</g>'
    out["Vortrocknen/Dry_Up_Timer"] = icon(small.format(predry_glyph()) + clock_badge())
    out["Vortrocknen/released0"] = icon(
        small.format(predry_glyph(GREY, GREY, GREY))
        + f'<path d="M16 16 L80 80" {stroke(WHITE, 15)}/>'
        + f'<path d="M16 16 L80 80" {stroke(SLATE, 8)}/>')
    for m in (15, 30, 45, 60):
        out[f"Vortrocknen/released{m}_1"] = icon(small.format(predry_glyph()) + badge(str(m)))
    return out


# ---------------------------------------------------------------- menu and page icons (96 x 96)
def star_points(cx=48, cy=51, outer=39, inner=17):
    pts = []
    for i in range(10):
        r = outer if i % 2 == 0 else inner
        a = math.radians(-90 + i * 36)
        pts.append(f"{cx + r * math.cos(a):.1f} {cy + r * math.sin(a):.1f}")
    return "M" + " L".join(pts) + " Z"


def gear(cx, cy, color, ring_r=23, ring_w=14, teeth=8, tooth_w=15, tooth_out=41):
    """Gear: a thick ring with rounded teeth; the hub stays transparent."""
    out = f'<circle cx="{cx}" cy="{cy}" r="{ring_r}" {stroke(color, ring_w)}/>'
    for i in range(teeth):
        out += (f'<rect x="{cx - tooth_w / 2}" y="{cy - tooth_out}" width="{tooth_w}" '
                f'height="{tooth_out - ring_r}" rx="4" fill="{color}" '
                f'transform="rotate({i * 360 / teeth} {cx} {cy})"/>')
    return out


def menu_icons():
    out = {}

    # Exit to the main menu: house with an orange door.
    out["Icons/home"] = icon(
        f'<path d="M22 42 V80 A4 4 0 0 0 26 84 H70 A4 4 0 0 0 74 80 V42" {stroke(SLATE)}/>'
        f'<path d="M10 48 L48 14 L86 48" {stroke(SLATE)}/>'
        f'<rect x="39" y="56" width="18" height="28" rx="3" fill="{ORANGE}"/>')

    # Favourites: filled orange star / slate outline.
    out["Icons/favorite_on"] = icon(
        f'<path d="{star_points()}" fill="{ORANGE}" stroke="{ORANGE}" stroke-width="8" '
        f'stroke-linejoin="round"/>')
    out["Icons/favorite_off"] = icon(f'<path d="{star_points()}" {stroke(SLATE, 8)}/>')

    # Program lists: rows with orange bullets.
    out["Icons/programs"] = icon(
        "".join(f'<circle cx="19" cy="{y}" r="7" fill="{ORANGE}"/>'
                f'<path d="M36 {y} H80" {stroke(SLATE)}/>' for y in (24, 48, 72)))

    out["Icons/settings"] = icon(gear(48, 48, SLATE))

    # Service: open-end wrench, jaw facing up-right.
    out["Icons/service"] = icon(
        '<mask id="jaw"><rect width="96" height="96" fill="#FFF"/>'
        '<rect x="53" y="29" width="44" height="14" rx="7" fill="#000" '
        'transform="rotate(-45 60 36)"/></mask>'
        f'<g mask="url(#jaw)">'
        f'<path d="M60 36 L20 76" {stroke(SLATE, 15)}/>'
        f'<circle cx="60" cy="36" r="22" fill="{SLATE}"/>'
        '</g>')

    # Lift door without the arrow, centred.
    out["Icons/door"] = icon(f'<g transform="translate(14 1)">{lift_door()}</g>')

    # Stylised QR symbol: three finder squares and a few modules.
    finder = ""
    for x, y in ((10, 10), (60, 10), (10, 60)):
        finder += (f'<rect x="{x + 3}" y="{y + 3}" width="20" height="20" rx="4" {stroke(SLATE, 6)}/>'
                   f'<rect x="{x + 8.5}" y="{y + 8.5}" width="9" height="9" rx="1.5" fill="{SLATE}"/>')
    modules = "".join(
        f'<rect x="{x}" y="{y}" width="9" height="9" rx="1.5" fill="{c}"/>'
        for x, y, c in ((44, 12, SLATE), (44, 28, SLATE), (12, 44, SLATE), (28, 44, SLATE),
                        (44, 44, ORANGE), (60, 44, SLATE), (76, 44, SLATE), (60, 60, SLATE),
                        (76, 76, SLATE), (44, 76, SLATE), (60, 76, SLATE), (76, 60, SLATE),
                        (44, 60, SLATE)))
    out["Icons/qrcode"] = icon(finder + modules)

    # USB: the trident.
    out["Icons/usb"] = icon(
        f'<path d="M48 80 V24" {stroke(SLATE, 7)}/>'
        f'<path d="M38 26 L48 10 L58 26 Z" fill="{SLATE}" stroke="{SLATE}" stroke-width="4" '
        f'stroke-linejoin="round"/>'
        f'<circle cx="48" cy="80" r="9" fill="{SLATE}"/>'
        f'<path d="M48 66 L26 54 V44" {stroke(SLATE, 7)}/>'
        f'<circle cx="26" cy="38" r="7" fill="{SLATE}"/>'
        f'<path d="M48 58 L70 46 V36" {stroke(SLATE, 7)}/>'
        f'<rect x="63" y="24" width="14" height="14" rx="2" fill="{SLATE}"/>')

    # Language: globe.
    out["Icons/language"] = icon(
        f'<circle cx="48" cy="48" r="37" {stroke(SLATE, 8)}/>'
        f'<ellipse cx="48" cy="48" rx="15" ry="37" {stroke(SLATE, 6)}/>'
        f'<path d="M11 48 H85 M18 28 H78 M18 68 H78" {stroke(SLATE, 6)}/>')

    # Temperature unit: thermometer with a degree ring.
    out["Icons/unit"] = icon(
        f'<rect x="32.5" y="28" width="7" height="44" rx="3.5" fill="{ORANGE}"/>'
        f'<circle cx="36" cy="72" r="10" fill="{ORANGE}"/>'
        f'<path d="M28 60 V20 A8 8 0 0 1 44 20 V60 A15 15 0 1 1 28 60 Z" {stroke(SLATE, 7)}/>'
        f'<circle cx="68" cy="24" r="10" {stroke(SLATE, 7)}/>')

    # Date and time: calendar page with a clock badge.
    days = "".join(f'<rect x="{x}" y="{y}" width="8" height="8" rx="2" fill="{SLATE}"/>'
                   for x, y in ((20, 42), (34, 42), (48, 42), (20, 56), (34, 56)))
    out["Icons/datetime"] = icon(
        f'<rect x="10" y="16" width="62" height="60" rx="8" {stroke(SLATE, 7)}/>'
        f'<rect x="10" y="16" width="62" height="16" rx="6" fill="{SLATE}"/>'
        f'<path d="M26 8 V20 M56 8 V20" {stroke(SLATE, 7)}/>'
        + days + clock_badge(68, 68, 23))

    # Device data: a chip with pins and an info mark.
    pins = ""
    for t in (34, 48, 62):
        pins += (f'<path d="M{t} 10 V22 M{t} 74 V86 M10 {t} H22 M74 {t} H86" '
                 f'{stroke(SLATE, 6)}/>')
    out["Icons/devicedata"] = icon(
        pins + f'<rect x="20" y="20" width="56" height="56" rx="9" fill="{SLATE}"/>'
        + info_i(ORANGE, 48, 34, 5, 43, 64, 9))

    # Self test: clipboard with green check marks.
    out["Icons/selftest"] = icon(
        f'<rect x="16" y="14" width="64" height="74" rx="8" {stroke(SLATE, 7)}/>'
        f'<rect x="32" y="6" width="32" height="16" rx="5" fill="{SLATE}"/>'
        f'<path d="M26 42 L32 48 L42 36 M26 66 L32 72 L42 60" {stroke(GREEN, 6)}/>'
        f'<path d="M52 43 H68 M52 67 H68" {stroke(SLATE, 6)}/>')

    # Failure list: amber warning triangle.
    out["Icons/failure"] = icon(
        f'<path d="M48 14 L84 78 L12 78 Z" fill="{AMBER}" stroke="{AMBER}" '
        f'stroke-width="12" stroke-linejoin="round"/>'
        + exclamation(SLATE, 48, 34, 60, 10, 5.5))

    # New program: plus in a rounded square.
    out["Icons/newprogram"] = icon(
        f'<rect x="12" y="12" width="72" height="72" rx="16" {stroke(SLATE, 8)}/>'
        f'<path d="M48 30 V66 M30 48 H66" {stroke(ORANGE)}/>')

    # Filter: funnel.
    out["Icons/filter"] = icon(
        f'<path d="M12 16 H84 L56 50 V78 L40 86 V50 Z" {stroke(SLATE, 8)}/>')

    # Edit: pencil, tip down-left, orange eraser.
    out["Icons/edit"] = icon(
        '<g transform="rotate(-45 48 48)">'
        f'<rect x="70" y="37" width="16" height="22" rx="5" fill="{ORANGE}"/>'
        f'<path d="M68 38 H30 L12 48 L30 58 H68 Z" {stroke(SLATE, 7)}/>'
        f'<path d="M12 48 L20 43.5 V52.5 Z" fill="{SLATE}" stroke="{SLATE}" stroke-width="4" '
        f'stroke-linejoin="round"/>'
        '</g>')

    # Delete: trash can with a red lid.
    out["Icons/delete"] = icon(
        f'<path d="M38 20 V12 H58 V20" {stroke(RED, 7)}/>'
        f'<path d="M14 22 H82" {stroke(RED)}/>'
        f'<path d="M22 34 L27 84 H69 L74 34" {stroke(SLATE, 8)}/>'
        f'<path d="M40 44 V72 M56 44 V72" {stroke(SLATE, 6)}/>')

    # Backspace key: key pointing left with a cross.
    out["Icons/backspace"] = icon(
        f'<path d="M34 20 H80 A4 4 0 0 1 84 24 V72 A4 4 0 0 1 80 76 H34 L10 48 Z" {stroke(SLATE, 8)}/>'
        f'<path d="M47 37 L69 59 M69 37 L47 59" {stroke(SLATE, 8)}/>')

    # Enter: return arrow.
    out["Icons/enter"] = icon(
        f'<path d="M78 16 V46 A10 10 0 0 1 68 56 H20 M38 38 L20 56 L38 74" {stroke(SLATE)}/>')

    # License: document with an orange seal.
    out["Icons/license"] = icon(
        f'<path d="M18 14 A4 4 0 0 1 22 10 H56 L74 28 V82 A4 4 0 0 1 70 86 H22 A4 4 0 0 1 18 82 Z" '
        f'{stroke(SLATE, 7)}/>'
        f'<path d="M56 10 V28 H74" {stroke(SLATE, 6)}/>'
        f'<path d="M30 36 H48 M30 50 H60" {stroke(SLATE, 6)}/>'
        f'<circle cx="66" cy="66" r="20" fill="{WHITE}"/>'
        f'<path d="M58 76 L54 92 L62 88 L66 94 L68 78 M74 76 L78 92 L70 88" fill="{ORANGE}" '
        f'stroke="{ORANGE}" stroke-width="3" stroke-linejoin="round"/>'
        f'<circle cx="66" cy="64" r="15" fill="{ORANGE}"/>'
        f'<circle cx="66" cy="64" r="8" {stroke(WHITE, 4)}/>')

    # Firing records: a sheet with a firing's curve on it.
    out["Icons/records"] = icon(
        f'<path d="M18 14 A4 4 0 0 1 22 10 H56 L74 28 V82 A4 4 0 0 1 70 86 H22 A4 4 0 0 1 18 82 Z" '
        f'{stroke(SLATE, 7)}/>'
        f'<path d="M56 10 V28 H74" {stroke(SLATE, 6)}/>'
        f'<path d="M29 72 L40 44 H50 L58 36 H64" {stroke(ORANGE, 7)}/>')

    # Service PIN: padlock.
    out["Icons/lock"] = icon(
        f'<path d="M30 44 V32 A18 18 0 0 1 66 32 V44" {stroke(SLATE)}/>'
        f'<rect x="16" y="42" width="64" height="46" rx="10" fill="{SLATE}"/>'
        f'<circle cx="48" cy="60" r="7" fill="{WHITE}"/>'
        f'<rect x="44.5" y="60" width="7" height="16" rx="3.5" fill="{WHITE}"/>')
    return out


# ---------------------------------------------------------------- failure levels (56 x 56)
def failures():
    out = {}
    out["Failure/schwer"] = svg(56, 56,
        f'<circle cx="28" cy="28" r="24" fill="{RED}"/>'
        + exclamation(WHITE, 28, 13, 32, 6.5, 3.6))
    out["Failure/mittel"] = svg(56, 56,
        f'<path d="M28 8 L50 46 L6 46 Z" fill="{AMBER}" stroke="{AMBER}" '
        f'stroke-width="7" stroke-linejoin="round"/>'
        + exclamation(SLATE, 28, 19, 35, 6, 3.3))
    out["Failure/info"] = svg(56, 56,
        f'<circle cx="28" cy="28" r="24" fill="{BLUE}"/>'
        + info_i(WHITE, 28, 16, 3.8, 23, 42, 7))
    return out


# ---------------------------------------------------------------- firing result (120 x 120)
def results():
    out = {}
    out["Prozess/success"] = svg(120, 120,
        f'<circle cx="60" cy="60" r="54" fill="{GREEN}"/>'
        f'<path d="M32 62 L52 82 L89 40" {stroke(WHITE, 12)}/>')
    out["Prozess/abort"] = svg(120, 120,
        f'<circle cx="60" cy="60" r="54" fill="{RED}"/>'
        f'<path d="M40 40 L80 80 M80 40 L40 80" {stroke(WHITE, 12)}/>')
    return out


# ---------------------------------------------------------------- main menu background
def background():
    body = f'''<defs>
  <linearGradient id="sky" x1="0" y1="0" x2="0" y2="1">
    <stop offset="0" stop-color="#F7F9FB"/>
    <stop offset="1" stop-color="#E7ECF1"/>
  </linearGradient>
  <radialGradient id="glow" cx="0.5" cy="0.5" r="0.5">
    <stop offset="0" stop-color="#FFFFFF" stop-opacity="0.7"/>
    <stop offset="1" stop-color="#FFFFFF" stop-opacity="0"/>
  </radialGradient>
</defs>
<rect width="800" height="480" fill="url(#sky)"/>
<circle cx="700" cy="60" r="320" fill="url(#glow)"/>
<path d="M0 420 C120 395 200 440 330 418 C460 396 540 440 660 416 C720 404 770 412 800 420 V480 H0 Z"
      fill="{ORANGE}" opacity="0.05"/>
<path d="M0 446 C110 428 210 462 340 444 C470 426 560 462 680 442 C730 434 770 438 800 444 V480 H0 Z"
      fill="{ORANGE}" opacity="0.07"/>
<path d="M0 466 C130 454 230 476 360 464 C490 452 580 476 700 462 C740 458 780 460 800 464 V480 H0 Z"
      fill="{ORANGE}" opacity="0.09"/>'''
    return {"Hintergrund/Hauptmenu": svg(800, 480, body)}


# ---------------------------------------------------------------- illustrations (800 x 480)
def crown(cx, base, s=1.0, shade=True):
    """A molar crown standing on its margin, drawn around (cx, base)."""
    def p(x, y):
        return f"{cx + x * s:.1f} {base + y * s:.1f}"
    d = (f"M{p(-30, 0)} C{p(-35, -30)} {p(-40, -56)} {p(-35, -72)} "
         f"C{p(-31, -84)} {p(-20, -84)} {p(-15, -76)} "
         f"C{p(-10, -86)} {p(-2, -88)} {p(0, -79)} "
         f"C{p(2, -88)} {p(10, -86)} {p(15, -76)} "
         f"C{p(20, -84)} {p(31, -84)} {p(35, -72)} "
         f"C{p(40, -56)} {p(35, -30)} {p(30, 0)} "
         f"Q{p(0, 7)} {p(-30, 0)} Z")
    sh = (f"M{p(14, -2)} C{p(22, -30)} {p(26, -52)} {p(24, -70)} "
          f"C{p(30, -76)} {p(34, -72)} {p(35, -66)} "
          f"C{p(38, -50)} {p(35, -28)} {p(30, 0)} Q{p(22, 3)} {p(14, -2)} Z")
    out = f'<path d="{d}" fill="{WHITE}"/>'
    if shade:
        out += f'<path d="{sh}" fill="#E4EAF0"/>'
    out += f'<path d="{d}" fill="none" stroke="{GREY}" stroke-width="{3 * s:.1f}" stroke-linejoin="round"/>'
    return out


def bridge(cx, base, s=1.0):
    """Three-unit bridge: two abutment crowns and a pontic joined by connectors."""
    out = ""
    step = 84 * s
    # connectors behind the units
    out += (f'<rect x="{cx - step:.1f}" y="{base - 62 * s:.1f}" width="{2 * step:.1f}" '
            f'height="{38 * s:.1f}" rx="{14 * s:.1f}" fill="{WHITE}" stroke="{GREY}" '
            f'stroke-width="{3 * s:.1f}"/>'
            f'<rect x="{cx - step:.1f}" y="{base - 40 * s:.1f}" width="{2 * step:.1f}" '
            f'height="{10 * s:.1f}" fill="#E4EAF0"/>')
    out += crown(cx - step, base, s * 0.92)
    out += crown(cx + step, base, s * 0.92)
    # pontic is shorter: it floats above the tray
    out += crown(cx, base - 14 * s, s * 0.9)
    return out


def tray(cx, cy, rx, ry, beads=True):
    side = 22
    out = (f'<ellipse cx="{cx}" cy="{cy + side}" rx="{rx}" ry="{ry}" fill="{TRAY_SIDE}"/>'
           f'<rect x="{cx - rx}" y="{cy}" width="{2 * rx}" height="{side}" fill="{TRAY_SIDE}"/>'
           f'<ellipse cx="{cx}" cy="{cy}" rx="{rx}" ry="{ry}" fill="{TRAY}"/>'
           f'<ellipse cx="{cx}" cy="{cy}" rx="{rx}" ry="{ry}" fill="none" stroke="{GREY}" stroke-width="3"/>'
           f'<ellipse cx="{cx}" cy="{cy + 3}" rx="{rx - 20}" ry="{ry - 12}" fill="{TRAY_IN}"/>')
    if beads:
        # sintering beads in a loose grid inside the tray
        for row in range(-2, 3):
            y = cy + 3 + row * (ry - 12) / 3.0
            half = (rx - 34) * (1 - (row / 3.2) ** 2) ** 0.5
            n = int(half * 2 / 26)
            for i in range(n + 1):
                x = cx - half + i * (2 * half / max(n, 1))
                out += f'<circle cx="{x:.1f}" cy="{y:.1f}" r="4.5" fill="#BAC5D0"/>'
    return out


def shadow(cx, cy, rx, ry, op=0.10):
    return f'<ellipse cx="{cx}" cy="{cy}" rx="{rx}" ry="{ry}" fill="{SLATE}" opacity="{op}"/>'


def gas_bottle(x, y, w, h):
    """Gas bottle with shoulder, valve and handwheel; (x, y) is the top-left of the body."""
    r = w / 2
    neck_w = w * 0.34
    return (f'<rect x="{x + (w - neck_w) / 2}" y="{y - 34}" width="{neck_w}" height="40" rx="6" fill="{SLATE}"/>'
            f'<rect x="{x + w * 0.18}" y="{y - 44}" width="{w * 0.64}" height="12" rx="6" fill="{SLATE}"/>'
            f'<rect x="{x}" y="{y}" width="{w}" height="{h}" rx="{r}" fill="{BLUE}"/>'
            f'<rect x="{x + w * 0.62}" y="{y + r * 0.7}" width="{w * 0.14}" height="{h - r * 1.4}" '
            f'rx="{w * 0.07}" fill="{WHITE}" opacity="0.25"/>'
            f'<rect x="{x}" y="{y + h * 0.42}" width="{w}" height="{h * 0.12}" fill="{WHITE}" opacity="0.85"/>')


def dome_path(cx, base, rx, wall, cap):
    """Outline of a bell: straight walls of height `wall`, elliptic cap of height `cap`."""
    return (f"M{cx - rx} {base} V{base - wall} "
            f"A{rx} {cap} 0 0 1 {cx + rx} {base - wall} V{base}")


def bell_back(cx, base, rx, ry):
    """Back half of the bell's seal ring, drawn before the load."""
    return (f'<path d="M{cx - rx} {base} A{rx} {ry} 0 0 1 {cx + rx} {base}" '
            f'fill="none" stroke="{BLUE}" stroke-width="6" opacity="0.6"/>')


def bell_front(cx, base, rx, ry, wall, cap):
    """Transparent argon chamber over the tray: glass, outline, highlight, front seal ring."""
    d = dome_path(cx, base, rx, wall, cap)
    top = base - wall - cap
    hl = (f"M{cx - rx + 26} {base - wall + 30} V{base - wall} "
          f"A{rx - 26} {cap - 22} 0 0 1 {cx - 30} {top + 24}")
    return (f'<path d="{d} A{rx} {ry} 0 0 1 {cx - rx} {base} Z" fill="{BLUE}" opacity="0.12"/>'
            f'<path d="{d}" fill="none" stroke="{BLUE}" stroke-width="6" stroke-linejoin="round"/>'
            f'<path d="{hl}" fill="none" stroke="{WHITE}" stroke-width="8" stroke-linecap="round" '
            f'opacity="0.85"/>'
            f'<path d="M{cx - rx} {base} A{rx} {ry} 0 0 0 {cx + rx} {base}" '
            f'fill="none" stroke="{BLUE}" stroke-width="9" stroke-linecap="round"/>'
            f'<rect x="{cx - 22}" y="{top - 14}" width="44" height="17" rx="7" fill="{BLUE}"/>')


def materials():
    out = {}
    # zirconia: restorations on a sintering tray
    body = (f'<rect width="800" height="480" fill="{BG}"/>'
            f'<ellipse cx="400" cy="236" rx="340" ry="146" fill="{STAGE}"/>'
            + shadow(400, 342, 262, 32)
            + tray(400, 292, 250, 62)
            + bridge(290, 300, 1.0)
            + crown(530, 282, 0.9)
            + crown(616, 306, 1.0)
            + crown(460, 334, 0.85))
    out["Material/Zirkon"] = svg(800, 480, body)

    # argon: the same tray under a sealed argon chamber, gas bottle connected by a hose
    cx, base, rx, ry = 330, 316, 190, 46
    wall, cap = 70, 140
    top = base - wall - cap
    particles = "".join(
        f'<circle cx="{cx + dx}" cy="{top + dy}" r="{r}" fill="{BLUE}" opacity="0.35"/>'
        for dx, dy, r in ((-110, 60, 6), (-60, 30, 4), (40, 26, 5), (110, 70, 6),
                          (80, 40, 4), (-140, 110, 4), (150, 120, 5), (-10, 70, 4)))
    body = (f'<rect width="800" height="480" fill="{BG}"/>'
            f'<ellipse cx="400" cy="236" rx="350" ry="146" fill="{STAGE}"/>'
            + shadow(cx, base + 40, 210, 26)
            + shadow(650, 372, 66, 9)
            + tray(cx, base, rx, ry)
            + bell_back(cx, base, rx, ry)
            + bridge(cx - 62, base + 6, 0.8)
            + crown(cx + 82, base + 2, 0.8)
            + crown(cx + 20, base + 30, 0.7)
            + particles
            + bell_front(cx, base, rx, ry, wall, cap)
            # hose from the chamber top to the bottle valve
            + f'<path d="M{cx + 22} {top - 8} C{cx + 90} {top - 30} 560 {top - 34} 612 {top - 16} '
              f'C640 {top - 6} 650 {top + 6} 650 116" {stroke(SLATE, 8)}/>'
            + gas_bottle(610, 160, 80, 204))
    out["Material/Argon"] = svg(800, 480, body)
    return out


def furnace(argon):
    """Front view of a lift-door furnace with the door lowered."""
    o = ""
    # recessed back wall (lift column) between head and base
    o += f'<rect x="286" y="200" width="228" height="160" fill="{WALL}"/>'
    # furnace head, the firing chamber drawn as a cut-away with its heating elements
    o += (f'<rect x="240" y="76" width="320" height="150" rx="24" fill="{WHITE}" '
          f'stroke="{SLATE}" stroke-width="4"/>')
    o += f'<path d="M306 226 V150 A94 54 0 0 1 494 150 V226 Z" fill="{SLATE}"/>'
    meander = "M330 200 V150"
    x = 330
    for i in range(7):
        x2 = x + 20
        meander += f" {'A10 10 0 0 1' if i % 2 == 0 else 'A10 10 0 0 0'} {x2} {150 if i % 2 == 0 else 200}"
        meander += f" V{200 if i % 2 == 0 else 150}"
        x = x2
    o += f'<path d="{meander}" fill="none" stroke="{ORANGE}" stroke-width="6" stroke-linecap="round"/>'
    o += f'<path d="M306 226 H494" {stroke(SLATE, 4)}/>'
    # base with the small control panel
    o += (f'<rect x="226" y="350" width="348" height="36" rx="10" fill="{WHITE}" '
          f'stroke="{SLATE}" stroke-width="4"/>')
    o += f'<rect x="248" y="359" width="64" height="18" rx="4" fill="{SLATE}"/>'
    o += f'<circle cx="544" cy="368" r="7" fill="{ORANGE}"/>'
    # lift rod and door plate
    o += f'<rect x="390" y="330" width="20" height="22" fill="{GREY}"/>'
    o += (f'<rect x="310" y="316" width="180" height="16" rx="5" fill="{GREY}" '
          f'stroke="{SLATE}" stroke-width="4"/>')
    if argon:
        # gas supply on the left: small bottle with a hose into the head
        o += shadow(150, 378, 40, 7)
        o += gas_bottle(124, 246, 52, 132)
        o += f'<path d="M150 200 C150 150 190 136 240 136" {stroke(SLATE, 7)}/>'
    return o


def insulation(x, y, w, h, dashed=False, argon=False):
    """Door insulation plug (a ceramic-fibre block) seen from the front."""
    cx = x + w / 2
    bw = w * 0.36
    top = y - 44
    bell = (f"M{cx - bw} {y} V{top + bw} A{bw} {bw} 0 0 1 {cx + bw} {top + bw} V{y}")
    if dashed:
        o = (f'<rect x="{x}" y="{y}" width="{w}" height="{h}" rx="10" fill="{WHITE}" '
             f'opacity="0.55"/>'
             f'<rect x="{x}" y="{y}" width="{w}" height="{h}" rx="10" fill="none" '
             f'stroke="{ORANGE}" stroke-width="4" stroke-dasharray="12 9"/>')
        if argon:
            o += (f'<path d="{bell}" fill="none" stroke="{ORANGE}" stroke-width="4" '
                  f'stroke-dasharray="12 9"/>')
        return o
    o = (f'<rect x="{x}" y="{y}" width="{w}" height="{h}" rx="10" fill="{WHITE}" '
         f'stroke="{SLATE}" stroke-width="4"/>'
         f'<path d="M{x + 4} {y + 14} H{x + w - 4}" {stroke(STAGE, 5)}/>')
    for i in range(1, 4):
        yy = y + 14 + i * (h - 14) / 4.0
        o += f'<path d="M{x + 18} {yy:.1f} H{x + w - 18}" {stroke("#D7DEE5", 3)}/>'
    if argon:
        # the small argon chamber carried on top of the insulation
        o += (f'<path d="{bell} Z" fill="{BLUE}" opacity="0.18"/>'
              f'<path d="{bell}" {stroke(BLUE, 5)}/>'
              f'<path d="M{cx - bw - 8} {y} H{cx + bw + 8}" {stroke(BLUE, 7)}/>')
    return o


def door_insulation():
    out = {}
    for name, argon in (("TuerisoZirkon", False), ("TuerisoArgon", True)):
        ph = 36 if argon else 56          # plug height
        pw = 128
        tx, ty = 336, 316 - ph            # target on the door plate
        sx, sy = 614, 316 - ph            # plug waiting to the right
        body = (f'<rect width="800" height="480" fill="{BG}"/>'
                f'<ellipse cx="430" cy="232" rx="350" ry="150" fill="{STAGE}"/>'
                + shadow(400, 386, 200, 8)
                + furnace(argon)
                + insulation(tx, ty, pw, ph, dashed=True, argon=argon)
                + shadow(sx + pw / 2, 322, 74, 7)
                + insulation(sx, sy, pw, ph, argon=argon))
        ay = ty + ph / 2
        body += (f'<path d="M{sx - 16} {ay} H{tx + pw + 22}" {stroke(ORANGE, 12)}/>'
                 f'<path d="M{tx + pw + 44} {ay - 22} L{tx + pw + 20} {ay} L{tx + pw + 44} {ay + 22}" '
                 f'{stroke(ORANGE, 12)}/>')
        out[f"Tuerisolation/{name}"] = svg(800, 480, body)
    return out


def main():
    everything = {}
    for part in (icons, menu_icons, failures, results, background, materials, door_insulation):
        everything.update(part())
    for rel, text in sorted(everything.items()):
        write(rel + ".svg", text)
    print(f"wrote {len(everything)} SVG files under {HERE}")


if __name__ == "__main__":
    main()
