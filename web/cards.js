// SPDX-License-Identifier: GPL-3.0-or-later
// The card pictures: every catalogue entry drawn at build time by the desktop
// program's own card painter onto one sheet at 1x and one at 2x, thirteen to
// a row in cells of 84 by 110 pixels. The page picks the sheet by its pixel ratio.
const CELL = 84, ROW = 110, COLUMNS = 13, MARGIN = 8;
export const SHEET = {width: COLUMNS * CELL + MARGIN, height: 6 * ROW + MARGIN};

// The sheet's order: the 52 faces, the twelve backs, the empty place, the
// pointer, the plain 76 by 100 picture, the splash.
export function slotOf(index) {
  if (index >= 14 && index <= 65) return index - 14;
  if (index >= 1 && index <= 12) return 52 + index - 1;
  return {13: 64, 66: 65, 67: 66, 68: 67}[index] ?? -1;
}

export function cardStyle(index, inset = 0) {
  const slot = slotOf(index);
  if (slot < 0) return {backgroundImage: 'none'};
  const x = MARGIN + (slot % COLUMNS) * CELL, y = MARGIN + Math.trunc(slot / COLUMNS) * ROW;
  return {
    backgroundImage: 'image-set(url("cards.png") 1x, url("cards@2x.png") 2x)',
    backgroundPosition: `${inset - x}px ${inset - y}px`,
    backgroundSize: `${SHEET.width}px ${SHEET.height}px`,
    backgroundRepeat: 'no-repeat',
  };
}

// A catalogue picture as a mouse pointer (32 by 32), cut from the 1x sheet.
const cursors = new Map();
let sheet = null;
export function pointerCursor(index) {
  if (cursors.has(index)) return cursors.get(index);
  const slot = slotOf(index);
  if (slot < 0) return 'default';
  if (!sheet) {
    sheet = new Image();
    sheet.src = 'cards.png';
  }
  if (!sheet.complete) {
    sheet.addEventListener('load', () => cursors.delete(index), {once: true});
    return 'pointer';
  }
  const canvas = document.createElement('canvas');
  canvas.width = canvas.height = 32;
  canvas.getContext('2d').drawImage(sheet, MARGIN + (slot % COLUMNS) * CELL, MARGIN + Math.trunc(slot / COLUMNS) * ROW,
    32, 32, 0, 0, 32, 32);
  const hotspot = index === 66 ? '9 1' : '0 0';
  const css = `url(${canvas.toDataURL()}) ${hotspot}, pointer`;
  cursors.set(index, css);
  return css;
}
