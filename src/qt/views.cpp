// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/views.h"

#include <QCheckBox>
#include <QDateTime>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <deque>

#include "qt/cardart.h"
#include "qt/fonts.h"
#include "suite/cards.h"

namespace ch {

namespace {

// A sunken or raised 3D edge, one pixel on each side.
void Bevel(QPainter& p, const QRectF& r, bool sunken) {
    const QColor dark(0x80, 0x80, 0x80), light(0xFF, 0xFF, 0xFF);
    p.setPen(QPen(sunken ? dark : light, 1));
    p.drawLine(QPointF(r.left() + 0.5, r.bottom() - 0.5), QPointF(r.left() + 0.5, r.top() + 0.5));
    p.drawLine(QPointF(r.left() + 0.5, r.top() + 0.5), QPointF(r.right() - 0.5, r.top() + 0.5));
    p.setPen(QPen(sunken ? light : dark, 1));
    p.drawLine(QPointF(r.right() - 0.5, r.top() + 0.5), QPointF(r.right() - 0.5, r.bottom() - 0.5));
    p.drawLine(QPointF(r.right() - 0.5, r.bottom() - 0.5), QPointF(r.left() + 0.5, r.bottom() - 0.5));
}

}  // namespace

void View::send(InputKind kind, int value, const std::string& text, int key) const {
    InputEvent e;
    e.kind = kind;
    e.control = snap_.name;
    e.index = snap_.index;
    e.value = value;
    e.text = text;
    e.key = key;
    owner_->send(e);
}


// A control drawn by our own code: clicks, double clicks and mouse moves.
class PaintedView : public QWidget, public View {
public:
    PaintedView(ViewHost& owner, const ControlSnap& s, QWidget* parent) : QWidget(parent), View(owner, s) {
        setMouseTracking(true);
    }
    QWidget* widget() override { return this; }
    void show(const ControlSnap& s) override {
        setAccessibleName(Q(s.text));
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        paint(p);
    }
    virtual void paint(QPainter& p) = 0;

    void mousePressEvent(QMouseEvent* e) override {
        if (e->button() == Qt::LeftButton) pressed_ = true;
    }
    void mouseReleaseEvent(QMouseEvent* e) override {
        const bool click = pressed_ && e->button() == Qt::LeftButton && rect().contains(e->position().toPoint());
        pressed_ = false;
        if (click && !afterDouble_) send(InputKind::Click);
        afterDouble_ = false;
    }
    void mouseDoubleClickEvent(QMouseEvent* e) override {
        if (e->button() != Qt::LeftButton) return;
        afterDouble_ = true;
        send(InputKind::DblClick, 1);  // the first click went out on its release
    }
    void mouseMoveEvent(QMouseEvent*) override {
        const qint64 now = QDateTime::currentMSecsSinceEpoch();
        if (now - lastMove_ < 50) return;
        lastMove_ = now;
        send(InputKind::MouseMove);
    }

private:
    bool pressed_ = false;
    bool afterDouble_ = false;
    qint64 lastMove_ = 0;
};

class LabelView : public PaintedView {
public:
    using PaintedView::PaintedView;

protected:
    void paint(QPainter& p) override {
        const ControlSnap& s = snap();
        if (s.backStyle != 0) p.fillRect(rect(), Rgb(s.backColor));
        QRect box = rect();
        if (s.borderStyle == 1) {
            Bevel(p, rect(), true);
            box.adjust(2, 1, -2, -1);
        }
        p.setFont(ControlFont(s.fontName, s.fontSize, s.fontBold));
        p.setPen(s.enabled ? Rgb(s.foreColor) : QColor(0x80, 0x80, 0x80));
        const int align = s.alignment == 1 ? Qt::AlignRight : s.alignment == 2 ? Qt::AlignHCenter : Qt::AlignLeft;
        p.drawText(box, align | Qt::AlignTop | Qt::TextWordWrap | Qt::TextShowMnemonic, Q(s.text));
    }
};

class ImageView : public PaintedView {
public:
    using PaintedView::PaintedView;

protected:
    void paint(QPainter& p) override {
        const ControlSnap& s = snap();
        const int inset = s.borderStyle == 1 ? 1 : 0;
        if (s.picture > 0) {
            const ImageCatalogue& catalogue = ImageList2();
            const QPixmap pixmap = CardPixmap(s.picture, catalogue.pixelWidth(s.picture),
                                              catalogue.pixelHeight(s.picture), devicePixelRatioF());
            p.drawPixmap(inset, inset, pixmap);
        }
        if (inset) {
            p.setRenderHint(QPainter::Antialiasing);
            p.setPen(QPen(QColor(0x30, 0x30, 0x38), 1));
            p.setBrush(Qt::NoBrush);
            p.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 5, 5);
        }
    }
};

// Rectangles and outlines: drawn over what lies below, never clicked.
class ShapeView : public PaintedView {
public:
    ShapeView(ViewHost& owner, const ControlSnap& s, QWidget* parent) : PaintedView(owner, s, parent) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

protected:
    void paint(QPainter& p) override {
        const ControlSnap& s = snap();
        const int pen = 2;
        p.setPen(QPen(Rgb(s.borderColor), pen, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        p.setBrush(Qt::NoBrush);
        p.drawRect(QRectF(rect()).adjusted(pen / 2.0, pen / 2.0, -pen / 2.0, -pen / 2.0));
    }
};

class LineView : public PaintedView {
public:
    LineView(ViewHost& owner, const ControlSnap& s, QWidget* parent) : PaintedView(owner, s, parent) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }
    // The widget's box around the line from (left, top) to (left + width, top + height).
    static QRect Box(const ControlSnap& s) {
        const int x1 = Px(s.left), y1 = Px(s.top), x2 = Px(s.left + s.width), y2 = Px(s.top + s.height);
        return QRect(QPoint(std::min(x1, x2), std::min(y1, y2)), QPoint(std::max(x1, x2), std::max(y1, y2)));
    }

protected:
    void paint(QPainter& p) override {
        const ControlSnap& s = snap();
        const QRect box = Box(s);
        const QPointF a(Px(s.left) - box.left() + 0.5, Px(s.top) - box.top() + 0.5);
        const QPointF b(Px(s.left + s.width) - box.left() + 0.5, Px(s.top + s.height) - box.top() + 0.5);
        p.setPen(QPen(Rgb(s.borderColor), 1));
        p.drawLine(a, b);
    }
};

class FrameView : public PaintedView {
public:
    using PaintedView::PaintedView;

protected:
    void paint(QPainter& p) override {
        const ControlSnap& s = snap();
        p.fillRect(rect(), Rgb(s.backColor));
        const QFont font = ControlFont(s.fontName, s.fontSize, s.fontBold);
        p.setFont(font);
        const QFontMetrics fm(font);
        const int top = fm.height() / 2;
        const QRect box = rect().adjusted(0, top, -1, -1);
        p.setPen(QColor(0x80, 0x80, 0x80));
        p.drawRect(box.adjusted(0, 0, -1, -1));
        p.setPen(Qt::white);
        p.drawRect(box.adjusted(1, 1, 0, 0));
        if (!s.text.empty()) {
            const QString text = Q(s.text);
            const int w = fm.horizontalAdvance(QString(text).remove('&')) + 6;
            p.fillRect(QRect(6, 0, w, fm.height()), Rgb(s.backColor));
            p.setPen(s.enabled ? Rgb(s.foreColor) : QColor(0x80, 0x80, 0x80));
            p.drawText(QRect(9, 0, w, fm.height()), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, text);
        }
    }
};

// The picture surface and its display list, in twips of the surface.
class SurfaceView : public PaintedView {
public:
    using PaintedView::PaintedView;

protected:
    void paint(QPainter& p) override {
        const ControlSnap& s = snap();
        p.fillRect(rect(), Rgb(s.backColor));
        p.setRenderHint(QPainter::Antialiasing);
        p.save();
        p.scale(1.0 / 15.0, 1.0 / 15.0);
        const qreal pen = 15.0;
        for (const DrawItem& item : s.drawing) {
            const QRectF circle(item.x1 - item.radius, item.y1 - item.radius, 2 * item.radius, 2 * item.radius);
            switch (item.kind) {
                case DrawItem::Kind::Pie: {
                    // Screen degrees: 0 at three o'clock, -90 at twelve, the
                    // slice running clockwise from start to end. Qt counts
                    // counter-clockwise, hence the signs.
                    const qreal span = item.endAngle - item.startAngle;
                    p.setPen(QPen(Rgb(item.color), pen));
                    p.setBrush(Rgb(item.fillColor));
                    p.drawPie(circle, qRound(-item.startAngle * 16), qRound(-span * 16));
                    break;
                }
                case DrawItem::Kind::Line:
                    p.setPen(QPen(Rgb(item.color), pen));
                    p.drawLine(QPointF(item.x1, item.y1), QPointF(item.x2, item.y2));
                    break;
                case DrawItem::Kind::Circle:
                    p.setPen(QPen(Rgb(item.color), pen));
                    p.setBrush(Qt::NoBrush);
                    p.drawEllipse(circle);
                    break;
            }
        }
        p.restore();
        if (s.borderStyle == 1) Bevel(p, rect(), true);
    }
};

// Three panels along the bottom of the window: goal, hint, time of day.
class StatusBarView : public PaintedView {
public:
    using PaintedView::PaintedView;

protected:
    void paint(QPainter& p) override {
        const ControlSnap& s = snap();
        p.fillRect(rect(), QColor(0xE4, 0xE4, 0xE4));
        p.setPen(QColor(0xA0, 0xA0, 0xA0));
        p.drawLine(0, 0, width(), 0);
        p.setFont(ControlFont(s.fontName, s.fontSize, s.fontBold));
        const int clock = std::min(width() / 4, 110);
        const int rest = width() - clock - 8;
        // The goal and the hint share the rest evenly, unless the hint needs
        // more and the goal can spare it.
        const QFontMetrics metrics(p.font());
        const int goal = metrics.horizontalAdvance(Q(s.panels[0]).trimmed()) + 12;
        const int hint = metrics.horizontalAdvance(Q(s.panels[1]).trimmed()) + 12;
        int first = rest / 2;
        if (hint > rest - first) first = std::clamp(std::max(goal, rest - hint), rest / 4, rest / 2);
        const int widths[3] = {first, rest - first, clock};
        int x = 2;
        for (int i = 0; i < 3; ++i) {
            const QRect panel(x, 3, widths[i] - 2, height() - 5);
            Bevel(p, panel, true);
            p.setPen(QColor(0x10, 0x10, 0x10));
            p.drawText(panel.adjusted(5, 0, -4, 0), Qt::AlignVCenter | (i == 2 ? Qt::AlignHCenter : Qt::AlignLeft),
                       Q(s.panels[static_cast<size_t>(i)]));
            x += widths[i] + 2;
        }
    }
};

class ButtonView : public QPushButton, public View {
public:
    ButtonView(ViewHost& owner, const ControlSnap& s, QWidget* parent) : QPushButton(parent), View(owner, s) {
        setAutoDefault(false);
        connect(this, &QPushButton::clicked, this, [this] { send(InputKind::Click); });
    }
    QWidget* widget() override { return this; }
    void show(const ControlSnap& s) override {
        setText(Q(s.text));
        setDefault(s.isDefault);
    }
};

class TextView : public QLineEdit, public View {
public:
    TextView(ViewHost& owner, const ControlSnap& s, QWidget* parent) : QLineEdit(parent), View(owner, s) {
        connect(this, &QLineEdit::textEdited, this, [this](const QString& t) {
            if (sent_.empty()) base_ = snap().text;
            sent_.push_back(t.toStdString());
            send(InputKind::SetText, 0, t.toStdString());
        });
        connect(this, &QLineEdit::returnPressed, this, [this] { send(InputKind::Key, 0, {}, 13); });
    }
    QWidget* widget() override { return this; }
    // What the user typed stays until the logic has seen it: a snapshot taken
    // before then still holds the text from before the typing.
    void show(const ControlSnap& s) override {
        if (!sent_.empty()) {
            auto it = std::find(sent_.begin(), sent_.end(), s.text);
            if (it != sent_.end()) {
                sent_.erase(sent_.begin(), it + 1);
                if (!sent_.empty()) return;
            } else if (s.text == base_) {
                return;
            } else {
                sent_.clear();  // the logic set a text of its own
            }
        }
        if (text() != Q(s.text)) setText(Q(s.text));
        if (s.selectionSerial != selectionSerial_) {
            selectionSerial_ = s.selectionSerial;
            setSelection(s.selStart, s.selLength);
        }
    }

protected:
    void keyPressEvent(QKeyEvent* e) override {
        if (e->key() == Qt::Key_Escape) {
            send(InputKind::Key, 0, {}, 27);
            return;
        }
        QLineEdit::keyPressEvent(e);
    }
    void focusInEvent(QFocusEvent* e) override {
        QLineEdit::focusInEvent(e);
        send(InputKind::Focus);
    }
    void mousePressEvent(QMouseEvent* e) override {
        QLineEdit::mousePressEvent(e);
        if (e->button() == Qt::LeftButton) send(InputKind::Click);
    }

private:
    std::deque<std::string> sent_;
    std::string base_;
    uint64_t selectionSerial_ = 0;
};

// A text box several lines high shows long texts (the rules) wrapped, with a
// scroll bar; the player reads it but does not type into it.
class MultiTextView : public QPlainTextEdit, public View {
public:
    static constexpr int kMinHeight = 720;  // twips: taller than two lines of text

    MultiTextView(ViewHost& owner, const ControlSnap& s, QWidget* parent) : QPlainTextEdit(parent), View(owner, s) {
        setReadOnly(true);
        setLineWrapMode(QPlainTextEdit::WidgetWidth);
    }
    QWidget* widget() override { return this; }
    void show(const ControlSnap& s) override {
        QString text = Q(s.text);
        text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
        if (toPlainText() != text) setPlainText(text);
    }
};

// Check and option buttons show the model's value; a click only asks.
template <typename Base>
class ToggleView : public Base, public View {
public:
    ToggleView(ViewHost& owner, const ControlSnap& s, QWidget* parent) : Base(parent), View(owner, s) {
        Base::setAutoExclusive(false);
        QObject::connect(this, &Base::clicked, this, [this] {
            Base::setChecked(snap().value != 0);
            send(InputKind::Click);
        });
    }
    QWidget* widget() override { return this; }
    void show(const ControlSnap& s) override {
        Base::setText(Q(s.text));
        Base::setChecked(s.value != 0);
        QPalette pal = Base::palette();
        pal.setColor(QPalette::Window, Rgb(s.backColor));
        pal.setColor(QPalette::WindowText, Rgb(s.foreColor));
        Base::setPalette(pal);
    }
};

class ProgressView : public QProgressBar, public View {
public:
    ProgressView(ViewHost& owner, const ControlSnap& s, QWidget* parent) : QProgressBar(parent), View(owner, s) {
        setTextVisible(false);
    }
    QWidget* widget() override { return this; }
    void show(const ControlSnap& s) override {
        setRange(s.minValue, std::max(s.minValue, s.maxValue));
        setValue(std::clamp(s.value, s.minValue, std::max(s.minValue, s.maxValue)));
    }
};

class ListView : public QListWidget, public View {
public:
    ListView(ViewHost& owner, const ControlSnap& s, QWidget* parent) : QListWidget(parent), View(owner, s) {
        connect(this, &QListWidget::itemClicked, this,
                [this](QListWidgetItem* item) { send(InputKind::ListSelect, row(item)); });
        connect(this, &QListWidget::itemDoubleClicked, this,
                [this](QListWidgetItem*) { send(InputKind::DblClick, 1); });
    }
    QWidget* widget() override { return this; }
    void show(const ControlSnap& s) override {
        QStringList items;
        for (const std::string& item : s.items) items << Q(item);
        bool same = count() == items.size();
        for (int i = 0; same && i < count(); ++i) same = item(i)->text() == items[i];
        if (!same) {
            clear();
            addItems(items);
        }
        if (currentRow() != s.value) setCurrentRow(s.value);
    }
};

View* CreateView(ViewHost& owner, const ControlSnap& s, QWidget* parent) {
    switch (s.kind) {
        case ControlKind::Label: return new LabelView(owner, s, parent);
        case ControlKind::Image: return new ImageView(owner, s, parent);
        case ControlKind::Shape: return new ShapeView(owner, s, parent);
        case ControlKind::Line: return new LineView(owner, s, parent);
        case ControlKind::Button: return new ButtonView(owner, s, parent);
        case ControlKind::TextBox:
            if (s.height >= MultiTextView::kMinHeight) return new MultiTextView(owner, s, parent);
            return new TextView(owner, s, parent);
        case ControlKind::CheckBox: return new ToggleView<QCheckBox>(owner, s, parent);
        case ControlKind::OptionButton: return new ToggleView<QRadioButton>(owner, s, parent);
        case ControlKind::Frame: return new FrameView(owner, s, parent);
        case ControlKind::PictureBox: return new SurfaceView(owner, s, parent);
        case ControlKind::StatusBar: return new StatusBarView(owner, s, parent);
        case ControlKind::ProgressBar: return new ProgressView(owner, s, parent);
        case ControlKind::ListBox:
        case ControlKind::FileList:
        case ControlKind::DirList:
        case ControlKind::DriveList: return new ListView(owner, s, parent);
        case ControlKind::Timer:
        case ControlKind::Menu: return nullptr;
    }
    return nullptr;
}

QRect LineViewBox(const ControlSnap& s) { return LineView::Box(s); }

}  // namespace ch
