// SPDX-License-Identifier: GPL-3.0-or-later
// The card pictures: every entry drawn at its size and pixel ratio, faces in their suit's colour, no two alike.
#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QImage>
#include <set>

#include "qt/cardart.h"
#include "suite/cards.h"

namespace {

QByteArray Digest(const QPixmap& pixmap) {
    const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    return QCryptographicHash::hash(
        QByteArrayView(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes()),
        QCryptographicHash::Sha1);
}

// Counts strongly red pixels.
int RedPixels(const QPixmap& pixmap) {
    const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    int red = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor c = image.pixelColor(x, y);
            if (c.alpha() > 200 && c.red() > 150 && c.green() < 90 && c.blue() < 90) ++red;
        }
    return red;
}

}  // namespace

// Every entry is drawn at its size times the pixel ratio, like no other, and the same again from the cache.
TEST(CardArt, EveryEntryIsDrawnAtItsSizeAndNoTwoAreAlike) {
    const ch::ImageCatalogue& catalogue = ch::ImageList2();
    std::set<QByteArray> seen;
    for (qreal ratio : {1.0, 2.0}) {
        for (int i = 1; i <= ch::ImageCatalogue::kCount; ++i) {
            const QPixmap p = ch::CardPixmap(i, ratio);
            ASSERT_FALSE(p.isNull()) << i;
            const QSize size(catalogue.pixelWidth(i), catalogue.pixelHeight(i));
            EXPECT_EQ(p.size(), size * ratio) << i;
            EXPECT_EQ(p.devicePixelRatio(), ratio) << i;
            if (ratio > 1.0) continue;
            const QByteArray digest = Digest(p);
            EXPECT_TRUE(seen.insert(digest).second) << "entry " << i << " looks like another";
            EXPECT_EQ(Digest(ch::CardPixmap(i, 1.0)), digest) << i;
        }
    }
    EXPECT_TRUE(ch::CardPixmap(0, 1.0).isNull());
    EXPECT_TRUE(ch::CardPixmap(69, 1.0).isNull());
    EXPECT_TRUE(ch::CardPixmap(14, 0, 10, 1.0).isNull());
}

TEST(CardArt, RedSuitsAreRedAndBlackSuitsAreNot) {
    for (int rank = 1; rank <= 13; ++rank) {
        const int spade = ch::ImageCatalogue::kFirstFace + rank - 1;
        EXPECT_GT(RedPixels(ch::CardPixmap(spade + 13, 1.0)), 20) << "hearts " << rank;
        EXPECT_GT(RedPixels(ch::CardPixmap(spade + 39, 1.0)), 20) << "diamonds " << rank;
        EXPECT_LT(RedPixels(ch::CardPixmap(spade, 1.0)), 5) << "spades " << rank;
        EXPECT_LT(RedPixels(ch::CardPixmap(spade + 26, 1.0)), 5) << "clubs " << rank;
    }
}

TEST(CardArt, TheHighResolutionPictureIsDrawnNotScaledUp) {
    // At ratio 2 the picture has detail of its own: scaling the small one up
    // and comparing finds differences along every edge.
    const QPixmap small = ch::CardPixmap(ch::ImageCatalogue::kFirstFace + 12, 1.0);
    const QPixmap large = ch::CardPixmap(ch::ImageCatalogue::kFirstFace + 12, 2.0);
    const QImage scaled = small.toImage().scaled(large.size()).convertToFormat(QImage::Format_ARGB32);
    const QImage drawn = large.toImage().convertToFormat(QImage::Format_ARGB32);
    int differ = 0;
    for (int y = 0; y < drawn.height(); ++y)
        for (int x = 0; x < drawn.width(); ++x)
            if (drawn.pixel(x, y) != scaled.pixel(x, y)) ++differ;
    EXPECT_GT(differ, drawn.width() * drawn.height() / 50);
}
