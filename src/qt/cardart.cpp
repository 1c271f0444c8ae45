// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/cardart.h"

#include <QFont>
#include <QHash>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QtMath>
#include <cmath>

#include "suite/cards.h"

namespace ch {

namespace {

const QColor kRed(0xC4, 0x14, 0x2B);
const QColor kBlack(0x1B, 0x1B, 0x22);
const QColor kGold(0xD9, 0xA4, 0x1E);
const QColor kEdge(0x6E, 0x6E, 0x78);

enum Suit { Spades, Hearts, Clubs, Diamonds };

// Suit shapes are built in a 0..1000 box (united paths in a small box come
// out as polygons) and scaled where they are drawn.
QPainterPath HeartPath() {
    QPainterPath p;
    p.moveTo(500, 1000);
    p.cubicTo(380, 820, 0, 620, 0, 300);
    p.cubicTo(0, 90, 160, 0, 270, 0);
    p.cubicTo(390, 0, 470, 80, 500, 190);
    p.cubicTo(530, 80, 610, 0, 730, 0);
    p.cubicTo(840, 0, 1000, 90, 1000, 300);
    p.cubicTo(1000, 620, 620, 820, 500, 1000);
    p.closeSubpath();
    return p;
}

QPainterPath DiamondPath() {
    QPainterPath p;
    p.moveTo(500, 0);
    p.quadTo(650, 300, 860, 500);
    p.quadTo(650, 700, 500, 1000);
    p.quadTo(350, 700, 140, 500);
    p.quadTo(350, 300, 500, 0);
    p.closeSubpath();
    return p;
}

QPainterPath StemPath() {
    QPainterPath stem;
    stem.moveTo(500, 620);
    stem.cubicTo(520, 800, 600, 930, 720, 1000);
    stem.lineTo(280, 1000);
    stem.cubicTo(400, 930, 480, 800, 500, 620);
    stem.closeSubpath();
    return stem;
}

QPainterPath SpadePath() {
    QPainterPath leaf;
    leaf.moveTo(500, 0);
    leaf.cubicTo(620, 180, 1000, 380, 1000, 610);
    leaf.cubicTo(1000, 760, 880, 830, 770, 830);
    leaf.cubicTo(660, 830, 560, 770, 500, 680);
    leaf.cubicTo(440, 770, 340, 830, 230, 830);
    leaf.cubicTo(120, 830, 0, 760, 0, 610);
    leaf.cubicTo(0, 380, 380, 180, 500, 0);
    leaf.closeSubpath();
    return leaf.united(StemPath());
}

QPainterPath ClubPath() {
    QPainterPath p;
    p.addEllipse(QPointF(500, 240), 235, 235);
    p = p.united([] {
        QPainterPath q;
        q.addEllipse(QPointF(250, 590), 235, 235);
        return q;
    }());
    p = p.united([] {
        QPainterPath q;
        q.addEllipse(QPointF(750, 590), 235, 235);
        return q;
    }());
    p = p.united([] {
        QPainterPath q;
        q.addRect(420, 300, 160, 380);
        return q;
    }());
    return p.united(StemPath());
}

const QPainterPath& SuitPath(Suit suit) {
    static const QPainterPath paths[4] = {SpadePath(), HeartPath(), ClubPath(), DiamondPath()};
    return paths[suit];
}

QColor SuitColor(Suit suit) { return suit == Hearts || suit == Diamonds ? kRed : kBlack; }

// A suit shape centred on (cx, cy), `size` high, upside down if asked.
void DrawPip(QPainter& p, Suit suit, qreal cx, qreal cy, qreal size, bool inverted = false,
             const QColor* color = nullptr) {
    p.save();
    p.translate(cx, cy);
    if (inverted) p.rotate(180);
    const qreal s = size / 1000.0;
    p.scale(s, s);
    p.translate(-500, -500);
    p.setPen(Qt::NoPen);
    p.setBrush(color ? *color : SuitColor(suit));
    p.drawPath(SuitPath(suit));
    p.restore();
}

QFont IndexFont(qreal pixelHeight, bool condensed) {
    QFont f(QStringLiteral("DejaVu Sans"));
    f.setBold(true);
    f.setPixelSize(qMax(1, qRound(pixelHeight)));
    if (condensed) f.setStretch(QFont::Condensed);
    f.setHintingPreference(QFont::PreferNoHinting);
    return f;
}

QString RankText(int rank) {
    switch (rank) {
        case 1: return QStringLiteral("A");
        case 11: return QStringLiteral("J");
        case 12: return QStringLiteral("Q");
        case 13: return QStringLiteral("K");
        default: return QString::number(rank);
    }
}

void CardBlank(QPainter& p, qreal w, qreal h, const QColor& fill) {
    const qreal r = w * 0.075;
    p.setPen(QPen(kEdge, qMax<qreal>(0.6, w / 90.0)));
    p.setBrush(fill);
    const qreal inset = p.pen().widthF() / 2;
    p.drawRoundedRect(QRectF(inset, inset, w - 2 * inset, h - 2 * inset), r, r);
}

// Index in the top left corner; the caller rotates for the other one.
void DrawIndex(QPainter& p, int rank, Suit suit, qreal w, qreal h) {
    const qreal textH = h * 0.165;
    const QString text = RankText(rank);
    p.setFont(IndexFont(textH, rank == 10));
    p.setPen(SuitColor(suit));
    const QRectF box(w * 0.015, h * 0.02, w * 0.2, textH * 1.05);
    p.drawText(box, Qt::AlignHCenter | Qt::AlignVCenter, text);
    DrawPip(p, suit, box.center().x(), box.bottom() + h * 0.055, h * 0.095);
}

// Pip positions for 2 to 10, as fractions of the pip area.
struct Spot {
    qreal x, y;
};

std::vector<Spot> PipSpots(int rank) {
    const qreal L = 0.0, C = 0.5, R = 1.0;
    switch (rank) {
        case 2: return {{C, 0}, {C, 1}};
        case 3: return {{C, 0}, {C, 0.5}, {C, 1}};
        case 4: return {{L, 0}, {R, 0}, {L, 1}, {R, 1}};
        case 5: return {{L, 0}, {R, 0}, {C, 0.5}, {L, 1}, {R, 1}};
        case 6: return {{L, 0}, {R, 0}, {L, 0.5}, {R, 0.5}, {L, 1}, {R, 1}};
        case 7: return {{L, 0}, {R, 0}, {C, 0.25}, {L, 0.5}, {R, 0.5}, {L, 1}, {R, 1}};
        case 8: return {{L, 0}, {R, 0}, {C, 0.25}, {L, 0.5}, {R, 0.5}, {C, 0.75}, {L, 1}, {R, 1}};
        case 9: return {{L, 0}, {R, 0}, {L, 1.0 / 3}, {R, 1.0 / 3}, {C, 0.5}, {L, 2.0 / 3}, {R, 2.0 / 3}, {L, 1}, {R, 1}};
        case 10:
            return {{L, 0},       {R, 0},       {C, 1.0 / 6}, {L, 1.0 / 3}, {R, 1.0 / 3},
                    {L, 2.0 / 3}, {R, 2.0 / 3}, {C, 5.0 / 6}, {L, 1},       {R, 1}};
        default: return {};
    }
}

// A crown, coronet or cap above the letter of a court card, in a 0..1 box.
void DrawCourtEmblem(QPainter& p, int rank, const QRectF& box, const QColor& ink) {
    p.save();
    p.translate(box.topLeft());
    p.scale(box.width(), box.height());
    QPainterPath path;
    if (rank == 13) {  // crown with three points
        path.moveTo(0.05, 0.95);
        path.lineTo(0.0, 0.25);
        path.lineTo(0.28, 0.55);
        path.lineTo(0.5, 0.05);
        path.lineTo(0.72, 0.55);
        path.lineTo(1.0, 0.25);
        path.lineTo(0.95, 0.95);
        path.closeSubpath();
    } else if (rank == 12) {  // coronet: a band under a round arch
        path.moveTo(0.05, 0.95);
        path.lineTo(0.05, 0.6);
        path.cubicTo(0.15, 0.1, 0.85, 0.1, 0.95, 0.6);
        path.lineTo(0.95, 0.95);
        path.closeSubpath();
    } else {  // cap with a feather
        path.moveTo(0.05, 0.95);
        path.cubicTo(0.05, 0.45, 0.35, 0.3, 0.6, 0.35);
        path.cubicTo(0.85, 0.4, 0.95, 0.65, 0.95, 0.95);
        path.closeSubpath();
        path.moveTo(0.55, 0.38);
        path.cubicTo(0.7, 0.0, 1.0, 0.0, 1.0, 0.05);
        path.cubicTo(0.9, 0.2, 0.75, 0.35, 0.62, 0.4);
        path.closeSubpath();
    }
    p.setPen(QPen(ink, 0.05));
    p.setBrush(kGold);
    p.drawPath(path);
    p.setPen(Qt::NoPen);
    p.setBrush(ink);
    if (rank == 13) {
        for (qreal x : {0.0, 0.5, 1.0}) p.drawEllipse(QPointF(x, x == 0.5 ? 0.05 : 0.25), 0.08, 0.08);
    } else if (rank == 12) {
        p.drawEllipse(QPointF(0.5, 0.25), 0.09, 0.09);
    }
    p.drawRect(QRectF(0.05, 0.78, 0.9, 0.08));
    p.restore();
}

void DrawFace(QPainter& p, int rank, Suit suit, qreal w, qreal h) {
    CardBlank(p, w, h, Qt::white);
    DrawIndex(p, rank, suit, w, h);
    p.save();
    p.translate(w, h);
    p.rotate(180);
    DrawIndex(p, rank, suit, w, h);
    p.restore();

    const QRectF area(w * 0.25, h * 0.1, w * 0.5, h * 0.8);
    if (rank == 1) {
        const qreal size = suit == Spades ? w * 0.5 : w * 0.36;
        DrawPip(p, suit, w / 2, h / 2, size);
        if (suit == Spades) {
            p.setPen(QPen(kGold, qMax<qreal>(0.5, w / 120.0)));
            p.setBrush(Qt::NoBrush);
            p.drawEllipse(QPointF(w / 2, h / 2), size * 0.62, size * 0.62);
        }
        return;
    }
    if (rank <= 10) {
        const qreal pip = w * 0.155;
        const QRectF spots(w * 0.335, h * 0.2, w * 0.33, h * 0.6);
        for (const Spot& s : PipSpots(rank)) {
            const qreal x = spots.left() + s.x * spots.width();
            const qreal y = spots.top() + s.y * spots.height();
            DrawPip(p, suit, x, y, pip, s.y > 0.5);
        }
        return;
    }
    // Court cards: a framed panel, the upper half mirrored into the lower.
    const QColor ink = SuitColor(suit);
    const QRectF panel(w * 0.22, h * 0.12, w * 0.56, h * 0.76);
    QLinearGradient shade(panel.topLeft(), panel.bottomRight());
    shade.setColorAt(0, QColor(0xFF, 0xF6, 0xDC));
    shade.setColorAt(1, QColor(0xF4, 0xE2, 0xB0));
    p.setPen(QPen(ink, qMax<qreal>(0.6, w / 80.0)));
    p.setBrush(shade);
    p.drawRect(panel);
    for (int half = 0; half < 2; ++half) {
        p.save();
        if (half == 1) {
            p.translate(w, h);
            p.rotate(180);
        }
        const QRectF emblem(panel.left() + panel.width() * 0.18, panel.top() + panel.height() * 0.05,
                            panel.width() * 0.64, panel.height() * 0.17);
        DrawCourtEmblem(p, rank, emblem, ink);
        QFont letter(QStringLiteral("DejaVu Serif"));
        letter.setBold(true);
        letter.setPixelSize(qMax(1, qRound(panel.height() * 0.2)));
        p.setFont(letter);
        p.setPen(ink);
        const QRectF line(panel.left(), emblem.bottom() + panel.height() * 0.02, panel.width(), panel.height() * 0.2);
        p.drawText(line, Qt::AlignCenter, RankText(rank));
        DrawPip(p, suit, panel.left() + panel.width() * 0.17, line.center().y(), panel.width() * 0.18);
        DrawPip(p, suit, panel.right() - panel.width() * 0.17, line.center().y(), panel.width() * 0.18);
        p.restore();
    }
    p.setPen(QPen(kGold, qMax<qreal>(0.5, w / 110.0)));
    p.drawLine(QPointF(panel.left() + 2, h / 2), QPointF(panel.right() - 2, h / 2));
    DrawPip(p, suit, w / 2, h / 2, panel.width() * 0.2);
}

// ---- card backs -----------------------------------------------------------

void PalmTree(QPainter& p, const QRectF& r) {
    QLinearGradient sky(r.topLeft(), r.bottomLeft());
    sky.setColorAt(0, QColor(0x2D, 0x9C, 0xDB));
    sky.setColorAt(0.65, QColor(0xF6, 0xC3, 0x6B));
    sky.setColorAt(0.66, QColor(0x1E, 0x88, 0xA8));
    sky.setColorAt(1, QColor(0x15, 0x5E, 0x7A));
    p.fillRect(r, sky);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0xFF, 0xE0, 0x82));
    p.drawEllipse(QPointF(r.left() + r.width() * 0.7, r.top() + r.height() * 0.45), r.width() * 0.16, r.width() * 0.16);
    p.setBrush(QColor(0xF2, 0xD4, 0x9B));
    p.drawEllipse(QRectF(r.left() - r.width() * 0.2, r.bottom() - r.height() * 0.14, r.width() * 0.95, r.height() * 0.3));
    // Trunk.
    QPainterPath trunk;
    const qreal bx = r.left() + r.width() * 0.32, by = r.bottom() - r.height() * 0.08;
    const qreal tx = r.left() + r.width() * 0.45, ty = r.top() + r.height() * 0.3;
    trunk.moveTo(bx - r.width() * 0.05, by);
    trunk.quadTo(bx + r.width() * 0.05, r.top() + r.height() * 0.55, tx - r.width() * 0.02, ty);
    trunk.lineTo(tx + r.width() * 0.03, ty);
    trunk.quadTo(bx + r.width() * 0.12, r.top() + r.height() * 0.55, bx + r.width() * 0.05, by);
    trunk.closeSubpath();
    p.setBrush(QColor(0x7A, 0x4E, 0x2A));
    p.drawPath(trunk);
    // Fronds.
    p.setBrush(QColor(0x1F, 0x7A, 0x3A));
    for (int i = 0; i < 6; ++i) {
        const qreal a = qDegreesToRadians(-170.0 + i * 34.0);
        const qreal len = r.width() * 0.38;
        const QPointF tip(tx + std::cos(a) * len, ty + std::sin(a) * len * 0.7 + len * 0.25);
        const QPointF mid(tx + std::cos(a) * len * 0.5, ty + std::sin(a) * len * 0.5 - len * 0.12);
        QPainterPath frond;
        frond.moveTo(tx, ty);
        frond.quadTo(mid + QPointF(0, -len * 0.12), tip);
        frond.quadTo(mid + QPointF(0, len * 0.08), QPointF(tx, ty));
        p.drawPath(frond);
    }
    p.setBrush(QColor(0x5A, 0x3A, 0x1E));
    p.drawEllipse(QPointF(tx, ty + r.width() * 0.04), r.width() * 0.035, r.width() * 0.035);
}

void Star(QPainter& p, QPointF c, qreal radius, const QColor& color) {
    QPainterPath star;
    for (int i = 0; i < 8; ++i) {
        const qreal a = qDegreesToRadians(i * 45.0 - 90);
        const qreal rr = i % 2 == 0 ? radius : radius * 0.3;
        const QPointF pt(c.x() + std::cos(a) * rr, c.y() + std::sin(a) * rr);
        if (i == 0) star.moveTo(pt);
        else star.lineTo(pt);
    }
    star.closeSubpath();
    p.setPen(Qt::NoPen);
    p.setBrush(color);
    p.drawPath(star);
}

void Hand(QPainter& p, QPointF wrist, qreal size, qreal angle) {
    p.save();
    p.translate(wrist);
    p.rotate(angle);
    p.setPen(QPen(QColor(0x4A, 0x2A, 0x6A), size * 0.03));
    p.setBrush(Qt::white);
    // Fingers, then the palm over their roots.
    const qreal fw = size * 0.13;
    const qreal lengths[4] = {0.42, 0.5, 0.47, 0.36};
    for (int i = 0; i < 4; ++i) {
        const qreal x = -size * 0.21 + i * size * 0.14;
        const qreal len = size * lengths[i];
        p.drawRoundedRect(QRectF(x - fw / 2, -size * 0.35 - len, fw, len + size * 0.1), fw / 2, fw / 2);
    }
    p.save();
    p.translate(-size * 0.25, -size * 0.2);
    p.rotate(-40);
    p.drawRoundedRect(QRectF(-fw / 2, -size * 0.32, fw, size * 0.36), fw / 2, fw / 2);
    p.restore();
    p.drawRoundedRect(QRectF(-size * 0.3, -size * 0.4, size * 0.58, size * 0.42), size * 0.12, size * 0.12);
    p.drawRect(QRectF(-size * 0.2, -size * 0.02, size * 0.38, size * 0.14));
    p.restore();
}

void MagicHands(QPainter& p, const QRectF& r) {
    QRadialGradient glow(r.center(), r.height() * 0.7);
    glow.setColorAt(0, QColor(0x8E, 0x44, 0xAD));
    glow.setColorAt(1, QColor(0x2C, 0x0E, 0x4A));
    p.fillRect(r, glow);
    const QPointF stars[] = {{0.15, 0.12}, {0.8, 0.1}, {0.5, 0.2}, {0.12, 0.5}, {0.88, 0.45},
                             {0.3, 0.85}, {0.72, 0.88}, {0.5, 0.62}, {0.2, 0.3}, {0.82, 0.7}};
    for (const QPointF& s : stars)
        Star(p, QPointF(r.left() + s.x() * r.width(), r.top() + s.y() * r.height()), r.width() * 0.07, kGold);
    Hand(p, QPointF(r.left() + r.width() * 0.3, r.top() + r.height() * 0.82), r.width() * 0.55, -18);
    Hand(p, QPointF(r.left() + r.width() * 0.7, r.top() + r.height() * 0.82), r.width() * 0.55, 18);
}

void NightCastle(QPainter& p, const QRectF& r) {
    QLinearGradient sky(r.topLeft(), r.bottomLeft());
    sky.setColorAt(0, QColor(0x0B, 0x13, 0x2B));
    sky.setColorAt(1, QColor(0x2E, 0x3F, 0x7A));
    p.fillRect(r, sky);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0xFF, 0xF3, 0xC4));
    const QPointF moon(r.left() + r.width() * 0.72, r.top() + r.height() * 0.18);
    p.drawEllipse(moon, r.width() * 0.13, r.width() * 0.13);
    p.setBrush(QColor(0x14, 0x1E, 0x40));
    p.drawEllipse(moon + QPointF(r.width() * 0.06, -r.width() * 0.03), r.width() * 0.11, r.width() * 0.11);
    const QPointF stars[] = {{0.15, 0.1}, {0.35, 0.22}, {0.5, 0.08}, {0.2, 0.35}, {0.9, 0.35}};
    for (const QPointF& s : stars)
        Star(p, QPointF(r.left() + s.x() * r.width(), r.top() + s.y() * r.height()), r.width() * 0.045, Qt::white);
    // The castle: a wall with battlements between two towers with roofs.
    const QColor stone(0x10, 0x10, 0x1C);
    p.setBrush(stone);
    const qreal W = r.width(), H = r.height(), x0 = r.left(), y0 = r.top();
    auto rect = [&](qreal x, qreal y, qreal w, qreal h) { p.drawRect(QRectF(x0 + x * W, y0 + y * H, w * W, h * H)); };
    rect(0.2, 0.62, 0.6, 0.38);
    for (int i = 0; i < 5; ++i) rect(0.22 + i * 0.12, 0.58, 0.07, 0.05);
    rect(0.08, 0.45, 0.2, 0.55);
    rect(0.72, 0.45, 0.2, 0.55);
    rect(0.42, 0.4, 0.16, 0.3);
    auto roof = [&](qreal left, qreal width, qreal base, qreal peak) {
        QPainterPath path;
        path.moveTo(x0 + left * W, y0 + base * H);
        path.lineTo(x0 + (left + width / 2) * W, y0 + peak * H);
        path.lineTo(x0 + (left + width) * W, y0 + base * H);
        path.closeSubpath();
        p.drawPath(path);
    };
    roof(0.05, 0.26, 0.46, 0.3);
    roof(0.69, 0.26, 0.46, 0.3);
    roof(0.4, 0.2, 0.41, 0.27);
    p.setBrush(QColor(0xFF, 0xD5, 0x4F));
    rect(0.16, 0.55, 0.04, 0.06);
    rect(0.8, 0.55, 0.04, 0.06);
    rect(0.48, 0.48, 0.04, 0.06);
    p.setBrush(QColor(0x3A, 0x24, 0x14));
    p.drawChord(QRectF(x0 + 0.43 * W, y0 + 0.8 * H, 0.14 * W, 0.2 * H * 2), 0, 180 * 16);
}

void HotCards(QPainter& p, const QRectF& r) {
    QLinearGradient heat(r.topLeft(), r.bottomLeft());
    heat.setColorAt(0, QColor(0x6A, 0x0A, 0x0A));
    heat.setColorAt(1, QColor(0xC0, 0x1E, 0x12));
    p.fillRect(r, heat);
    auto flame = [&](qreal cx, qreal base, qreal width, qreal height, const QColor& color) {
        QPainterPath path;
        const qreal x = r.left() + cx * r.width(), y = r.top() + base * r.height();
        const qreal w = width * r.width(), h = height * r.height();
        path.moveTo(x - w / 2, y);
        path.cubicTo(x - w * 0.7, y - h * 0.45, x - w * 0.05, y - h * 0.55, x, y - h);
        path.cubicTo(x + w * 0.15, y - h * 0.6, x + w * 0.75, y - h * 0.5, x + w / 2, y);
        path.closeSubpath();
        p.setPen(Qt::NoPen);
        p.setBrush(color);
        p.drawPath(path);
    };
    for (int i = 0; i < 4; ++i) flame(0.12 + i * 0.25, 1.02, 0.34, 0.55 + (i % 2) * 0.15, QColor(0xF0, 0x6A, 0x10));
    for (int i = 0; i < 4; ++i) flame(0.12 + i * 0.25, 1.02, 0.22, 0.38 + (i % 2) * 0.1, QColor(0xFF, 0xC1, 0x2E));
    flame(0.5, 0.75, 0.5, 0.5, QColor(0xF5, 0x7C, 0x14));
    flame(0.5, 0.75, 0.3, 0.32, QColor(0xFF, 0xE0, 0x66));
    DrawPip(p, Hearts, r.left() + r.width() * 0.5, r.top() + r.height() * 0.2, r.width() * 0.26, false, &kGold);
}

void DrawBack(QPainter& p, int design, qreal w, qreal h) {
    CardBlank(p, w, h, Qt::white);
    const qreal m = w * 0.08;
    const QRectF inner(m, m, w - 2 * m, h - 2 * m);
    p.save();
    QPainterPath clip;
    clip.addRoundedRect(inner, w * 0.04, w * 0.04);
    p.setClipPath(clip);
    switch (design) {
        case 0: PalmTree(p, inner); break;
        case 1: MagicHands(p, inner); break;
        case 2: NightCastle(p, inner); break;
        default: HotCards(p, inner); break;
    }
    p.restore();
    p.setPen(QPen(QColor(0, 0, 0, 70), qMax<qreal>(0.5, w / 100.0)));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(inner, w * 0.04, w * 0.04);
}

// A stack of cards seen from above: the edges of `layers` cards below the top one.
void DrawStack(QPainter& p, int design, qreal w, qreal h, int layers) {
    const qreal cardW = w * 71.0 / 76.0, cardH = h * 96.0 / 98.0;
    const qreal dx = (w - cardW) / 5.0, dy = (h - cardH) / 5.0;
    for (int i = layers; i >= 1; --i) {
        p.save();
        p.translate(dx * i, dy * i);
        CardBlank(p, cardW, cardH, i % 2 ? QColor(0xF7, 0xF7, 0xF2) : QColor(0xC8, 0xC8, 0xC0));
        p.restore();
    }
    DrawBack(p, design, cardW, cardH);
}

void DrawEmptyPlace(QPainter& p, qreal w, qreal h) {
    const qreal r = w * 0.075;
    const QRectF box(1, 1, w - 2, h - 2);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 0, 0, 40));
    p.drawRoundedRect(box, r, r);
    QPen dash(QColor(0xFF, 0xFF, 0xFF, 200), qMax<qreal>(1.0, w / 60.0));
    dash.setStyle(Qt::DashLine);
    p.setPen(dash);
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(box.adjusted(w * 0.06, w * 0.06, -w * 0.06, -w * 0.06), r * 0.6, r * 0.6);
}

void DrawSplash(QPainter& p, qreal w, qreal h) {
    CardBlank(p, w, h, Qt::white);
    const qreal m = w * 0.08;
    const QRectF inner(m, m, w - 2 * m, h - 2 * m);
    QLinearGradient bg(inner.topLeft(), inner.bottomLeft());
    bg.setColorAt(0, QColor(0x0E, 0x5A, 0x3C));
    bg.setColorAt(1, QColor(0x07, 0x33, 0x22));
    p.setPen(QPen(kGold, qMax<qreal>(0.6, w / 70.0)));
    p.setBrush(bg);
    p.drawRoundedRect(inner, w * 0.04, w * 0.04);
    // Six tiers of little cards, like the field of the game.
    const qreal cw = inner.width() * 0.14, ch = cw * 1.35;
    for (int tier = 0; tier < 6; ++tier) {
        const int n = tier + 1;
        for (int i = 0; i < n; ++i) {
            const qreal x = inner.center().x() + (i - (n - 1) / 2.0) * cw * 1.05 - cw / 2;
            const qreal y = inner.top() + inner.height() * 0.08 + tier * ch * 0.55;
            p.setPen(QPen(kEdge, qMax<qreal>(0.3, w / 200.0)));
            p.setBrush(tier % 2 ? QColor(0xFF, 0xF6, 0xDC) : Qt::white);
            p.drawRoundedRect(QRectF(x, y, cw, ch), cw * 0.15, cw * 0.15);
        }
    }
    QFont f(QStringLiteral("DejaVu Serif"));
    f.setBold(true);
    f.setPixelSize(qMax(1, qRound(h * 0.13)));
    f.setStretch(QFont::Condensed);
    p.setFont(f);
    p.setPen(kGold);
    p.drawText(QRectF(inner.left(), inner.bottom() - h * 0.26, inner.width(), h * 0.16), Qt::AlignCenter,
               QStringLiteral("Sumfall"));
    p.setPen(Qt::white);
    f.setPixelSize(qMax(1, qRound(h * 0.07)));
    f.setBold(false);
    p.setFont(f);
    p.drawText(QRectF(inner.left(), inner.bottom() - h * 0.12, inner.width(), h * 0.1), Qt::AlignCenter,
               QStringLiteral("make the sum!"));
}

// The cursor over a playable card: a pointing hand, fingertip at (9, 1).
void DrawPointer(QPainter& p, qreal w, qreal h) {
    p.scale(w / 32.0, h / 32.0);
    QPainterPath hand;
    hand.moveTo(9, 1);
    hand.cubicTo(11, 1, 12, 2, 12, 4);
    hand.lineTo(12, 12);
    hand.cubicTo(13, 10, 16, 10, 16, 12.5);
    hand.cubicTo(17, 11, 20, 11, 20, 13.5);
    hand.cubicTo(21, 12, 24, 12.5, 24, 15);
    hand.lineTo(24, 22);
    hand.cubicTo(24, 27, 21, 30, 17, 30);
    hand.lineTo(13, 30);
    hand.cubicTo(10, 30, 8.5, 28, 7, 26);
    hand.lineTo(2.5, 19);
    hand.cubicTo(1.5, 17, 3.5, 15, 5.5, 16.5);
    hand.lineTo(6, 17);
    hand.lineTo(6, 4);
    hand.cubicTo(6, 2, 7, 1, 9, 1);
    hand.closeSubpath();
    p.setPen(QPen(Qt::black, 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::white);
    p.drawPath(hand);
    p.setPen(QPen(Qt::black, 0.9));
    p.drawLine(QPointF(12, 12), QPointF(12, 18));
    p.drawLine(QPointF(16, 12.5), QPointF(16, 18));
    p.drawLine(QPointF(20, 13.5), QPointF(20, 18));
}

}  // namespace

void PaintCard(QPainter& p, int index, qreal w, qreal h) {
    p.setRenderHint(QPainter::Antialiasing, true);
    p.setRenderHint(QPainter::TextAntialiasing, true);
    p.setRenderHint(QPainter::SmoothPixmapTransform, true);
    if (index >= 1 && index <= 12) {
        const int design = (index - 1) / 3;
        switch ((index - 1) % 3) {
            case 0: DrawStack(p, design, w, h, 5); break;
            case 1: DrawBack(p, design, w, h); break;
            default: DrawStack(p, design, w, h, 2); break;
        }
    } else if (index == ImageCatalogue::kEmptyPlace || index == ImageCatalogue::kEmpty76x100) {
        DrawEmptyPlace(p, w, h);
    } else if (index >= ImageCatalogue::kFirstFace && index <= ImageCatalogue::kLastFace) {
        const int n = index - ImageCatalogue::kFirstFace;
        DrawFace(p, n % 13 + 1, static_cast<Suit>(n / 13), w, h);
    } else if (index == ImageCatalogue::kPointer) {
        DrawPointer(p, w, h);
    } else if (index == ImageCatalogue::kSplashEmblem) {
        DrawSplash(p, w, h);
    }
}

QPixmap CardPixmap(int index, int width, int height, qreal ratio) {
    if (index < 1 || index > ImageCatalogue::kCount || width <= 0 || height <= 0) return {};
    const int devW = qMax(1, qRound(width * ratio));
    const int devH = qMax(1, qRound(height * ratio));
    const quint64 key = quint64(index) | quint64(devW) << 8 | quint64(devH) << 32;
    static QHash<quint64, QPixmap> cache;
    auto it = cache.constFind(key);
    if (it != cache.constEnd()) return *it;
    QImage image(devW, devH, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    image.setDevicePixelRatio(ratio);
    {
        QPainter painter(&image);
        PaintCard(painter, index, width, height);
    }
    QPixmap pixmap = QPixmap::fromImage(std::move(image));
    pixmap.setDevicePixelRatio(ratio);
    cache.insert(key, pixmap);
    return pixmap;
}

QPixmap CardPixmap(int index, qreal ratio) {
    const ImageCatalogue& catalogue = ImageList2();
    return CardPixmap(index, catalogue.pixelWidth(index), catalogue.pixelHeight(index), ratio);
}

QPixmap AppIconPixmap(int size, qreal ratio) {
    QImage image(qRound(size * ratio), qRound(size * ratio), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    image.setDevicePixelRatio(ratio);
    {
        QPainter p(&image);
        p.setRenderHint(QPainter::Antialiasing);
        const qreal h = size * 0.72, w = h * 69.0 / 94.0;
        // Each card turned about its own centre, the pair centred in the box.
        auto card = [&](int index, qreal dx, qreal angle) {
            p.save();
            p.translate(size / 2.0 + dx * size, size / 2.0);
            p.rotate(angle);
            p.translate(-w / 2, -h / 2);
            PaintCard(p, index, w, h);
            p.restore();
        };
        card(8, 0.1, 12);                           // a back of the third design
        card(ImageCatalogue::kFirstFace, -0.08, -8);  // the ace of spades
    }
    QPixmap pixmap = QPixmap::fromImage(std::move(image));
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

}  // namespace ch
