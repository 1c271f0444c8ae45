#include "qt/renderer.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QCursor>
#include <QDateTime>
#include <QGuiApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPainter>
#include <QPainterPath>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <deque>

#include "qt/cardart.h"
#include "qt/fonts.h"
#include "suite/cards.h"

namespace ch {

namespace {

QColor Rgb(int bgr) { return QColor(bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF); }
QString Q(const std::string& s) { return QString::fromStdString(s); }

// Controls drawn on the form itself (labels, images, shapes, lines) lie below
// the controls that are windows of their own, as on the original platform.
bool IsWindowed(ControlKind kind) {
    switch (kind) {
        case ControlKind::Label:
        case ControlKind::Image:
        case ControlKind::Shape:
        case ControlKind::Line: return false;
        default: return true;
    }
}

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

// The client area below the menu bar; tells its window when it was first painted.
class ClientArea : public QWidget {
public:
    ClientArea(QWidget* parent, std::function<void()> painted) : QWidget(parent), painted_(std::move(painted)) {}

protected:
    void paintEvent(QPaintEvent* event) override {
        QWidget::paintEvent(event);
        if (painted_) {
            auto hook = std::move(painted_);
            painted_ = nullptr;
            hook();
        }
    }

private:
    std::function<void()> painted_;
};

}  // namespace

// ---- views ------------------------------------------------------------------

class View {
public:
    View(FormWindow& owner, const ControlSnap& s) : owner_(&owner), snap_(s) { snap_.revision = ~uint64_t{0}; }
    virtual ~View() = default;
    View(const View&) = delete;
    View& operator=(const View&) = delete;

    virtual QWidget* widget() = 0;
    // Shows the control's kind-specific properties.
    virtual void show(const ControlSnap& s) = 0;

    const ControlSnap& snap() const { return snap_; }
    void setSnap(const ControlSnap& s) { snap_ = s; }
    void send(InputKind kind, int value = 0, const std::string& text = {}, int key = 0) const;

protected:
    FormWindow* owner_;
    ControlSnap snap_;
};

class FormWindow : public QWidget {
public:
    FormWindow(Renderer& renderer, const FormSnap& form);
    ~FormWindow() override;

    uint64_t instance() const { return instance_; }
    const std::string& formName() const { return name_; }
    void apply(const FormSnap& form);
    void send(InputEvent event) const {
        event.form = name_;
        renderer_->send(event);
    }
    int formPointer() const { return formPointer_; }
    QCursor cursorFor(int pointer, int icon) const;

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
private:
    void applyControls(const FormSnap& form);
    void applyMenus(const FormSnap& form);
    void applyCommon(View& view, const ControlSnap& s);
    void applyCursor(View& view);
    void restack();
    void layoutClient();
    QSize clientSizeFor(int widthTw, int heightTw) const;
    View* create(const ControlSnap& s, QWidget* parent);

    Renderer* renderer_;
    std::string name_;
    uint64_t instance_;
    uint64_t focusSerial_ = 0;
    QMenuBar* menuBar_ = nullptr;
    QWidget* client_;
    std::map<std::string, std::unique_ptr<View>> views_;
    std::vector<View*> ordered_;
    std::string menuShape_;
    std::map<std::string, QAction*> actions_;
    bool hasMenu_ = false;
    int modelWidth_ = -1, modelHeight_ = -1, modelState_ = -1;
    QSize appliedClient_;
    bool placed_ = false;
    bool modal_ = false;
    int formPointer_ = 0;
    std::vector<View*> stacked_;
    View* statusBar_ = nullptr;
};

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
    PaintedView(FormWindow& owner, const ControlSnap& s, QWidget* parent) : QWidget(parent), View(owner, s) {
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
    ShapeView(FormWindow& owner, const ControlSnap& s, QWidget* parent) : PaintedView(owner, s, parent) {
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
    LineView(FormWindow& owner, const ControlSnap& s, QWidget* parent) : PaintedView(owner, s, parent) {
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
        const int widths[3] = {rest / 2, rest - rest / 2, clock};
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
    ButtonView(FormWindow& owner, const ControlSnap& s, QWidget* parent) : QPushButton(parent), View(owner, s) {
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
    TextView(FormWindow& owner, const ControlSnap& s, QWidget* parent) : QLineEdit(parent), View(owner, s) {
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

    MultiTextView(FormWindow& owner, const ControlSnap& s, QWidget* parent) : QPlainTextEdit(parent), View(owner, s) {
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
    ToggleView(FormWindow& owner, const ControlSnap& s, QWidget* parent) : Base(parent), View(owner, s) {
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
    ProgressView(FormWindow& owner, const ControlSnap& s, QWidget* parent) : QProgressBar(parent), View(owner, s) {
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
    ListView(FormWindow& owner, const ControlSnap& s, QWidget* parent) : QListWidget(parent), View(owner, s) {
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

// ---- the form window ----------------------------------------------------------

FormWindow::FormWindow(Renderer& renderer, const FormSnap& form)
    : renderer_(&renderer), name_(form.name), instance_(form.instance) {
    setAttribute(Qt::WA_DeleteOnClose, false);
    setFocusPolicy(Qt::StrongFocus);
    client_ = new ClientArea(this, [this] { renderer_->firstPainted(); });
    client_->setAutoFillBackground(true);
    for (const ControlSnap& s : form.controls)
        if (s.kind == ControlKind::Menu) hasMenu_ = true;
    if (hasMenu_) menuBar_ = new QMenuBar(this);
}

FormWindow::~FormWindow() {
    ordered_.clear();
    // Children first: views of a frame are child widgets of the frame's view.
    std::vector<std::string> keys;
    for (auto& [key, view] : views_)
        if (!view->snap().container.empty()) keys.push_back(key);
    for (const std::string& key : keys) views_.erase(key);
    views_.clear();
}

QCursor FormWindow::cursorFor(int pointer, int icon) const {
    switch (pointer) {
        case 1: return Qt::ArrowCursor;
        case 2: return Qt::CrossCursor;
        case 3: return Qt::IBeamCursor;
        case 11:
        case 13: return Qt::WaitCursor;
        case 12: return Qt::ForbiddenCursor;
        case 99: {
            if (icon <= 0) return Qt::ArrowCursor;
            const qreal ratio = devicePixelRatioF();
            QPixmap pixmap = CardPixmap(icon, 32, 32, ratio);
            const bool hand = icon == ImageCatalogue::kPointer;
            return QCursor(pixmap, hand ? 9 : 0, hand ? 1 : 0);
        }
        default: return Qt::ArrowCursor;
    }
}

QSize FormWindow::clientSizeFor(int widthTw, int heightTw) const {
    const int w = Px(widthTw) - 2 * FrameMetrics::kBorder;
    const int h = Px(heightTw) - 2 * FrameMetrics::kBorder - FrameMetrics::kTitle - (hasMenu_ ? FrameMetrics::kMenu : 0);
    return QSize(std::max(w, 60), std::max(h, 30));
}

void FormWindow::apply(const FormSnap& form) {
    setWindowTitle(Q(form.caption));
    QPalette pal = client_->palette();
    pal.setColor(QPalette::Window, Rgb(form.backColor));
    client_->setPalette(pal);
    const bool pointerChanged = formPointer_ != form.mousePointer;
    formPointer_ = form.mousePointer;
    setCursor(cursorFor(form.mousePointer, form.mouseIcon));
    if (pointerChanged)
        for (View* view : ordered_) applyCursor(*view);

    applyMenus(form);
    if (form.width != modelWidth_ || form.height != modelHeight_) {
        modelWidth_ = form.width;
        modelHeight_ = form.height;
        appliedClient_ = clientSizeFor(form.width, form.height);
        if (form.windowState == 0) {
            const int menu = menuBar_ ? menuBar_->sizeHint().height() : 0;
            resize(appliedClient_.width(), appliedClient_.height() + menu);
        }
    }
    if (!placed_) {
        move(Px(form.left), Px(form.top));
    }
    applyControls(form);
    if (form.focusSerial != focusSerial_) {
        focusSerial_ = form.focusSerial;
        auto focused = views_.find(form.focus);
        if (focused != views_.end() && !focused->second->widget()->hasFocus()) focused->second->widget()->setFocus();
    }

    if (form.visible) {
        if (form.modal != modal_ && isVisible()) hide();
        modal_ = form.modal;
        setWindowModality(modal_ ? Qt::ApplicationModal : Qt::NonModal);
        if (form.windowState != modelState_) {
            modelState_ = form.windowState;
            if (form.windowState == 2) setWindowState(Qt::WindowMaximized);
            else if (form.windowState == 1) setWindowState(Qt::WindowMinimized);
            else setWindowState(Qt::WindowNoState);
        }
        if (!isVisible()) {
            QWidget::show();
            placed_ = true;
            raise();
            activateWindow();
        }
    } else if (isVisible()) {
        hide();
    }
    setEnabled(form.enabled);
}

View* FormWindow::create(const ControlSnap& s, QWidget* parent) {
    switch (s.kind) {
        case ControlKind::Label: return new LabelView(*this, s, parent);
        case ControlKind::Image: return new ImageView(*this, s, parent);
        case ControlKind::Shape: return new ShapeView(*this, s, parent);
        case ControlKind::Line: return new LineView(*this, s, parent);
        case ControlKind::Button: return new ButtonView(*this, s, parent);
        case ControlKind::TextBox:
            if (s.height >= MultiTextView::kMinHeight) return new MultiTextView(*this, s, parent);
            return new TextView(*this, s, parent);
        case ControlKind::CheckBox: return new ToggleView<QCheckBox>(*this, s, parent);
        case ControlKind::OptionButton: return new ToggleView<QRadioButton>(*this, s, parent);
        case ControlKind::Frame: return new FrameView(*this, s, parent);
        case ControlKind::PictureBox: return new SurfaceView(*this, s, parent);
        case ControlKind::StatusBar: return new StatusBarView(*this, s, parent);
        case ControlKind::ProgressBar: return new ProgressView(*this, s, parent);
        case ControlKind::ListBox:
        case ControlKind::FileList:
        case ControlKind::DirList:
        case ControlKind::DriveList: return new ListView(*this, s, parent);
        case ControlKind::Timer:
        case ControlKind::Menu: return nullptr;
    }
    return nullptr;
}

void FormWindow::applyControls(const FormSnap& form) {
    bool added = false;
    for (const ControlSnap& s : form.controls) {
        if (s.kind == ControlKind::Menu || s.kind == ControlKind::Timer) continue;
        const std::string key = s.key();
        auto it = views_.find(key);
        if (it == views_.end()) {
            QWidget* parent = client_;
            if (!s.container.empty()) {
                auto frame = views_.find(s.container);
                if (frame != views_.end()) parent = frame->second->widget();
            }
            View* view = create(s, parent);
            if (!view) continue;
            view->widget()->setObjectName(Q(key));
            it = views_.emplace(key, std::unique_ptr<View>(view)).first;
            ordered_.push_back(view);
            if (s.kind == ControlKind::StatusBar) statusBar_ = view;
            added = true;
        }
        View& view = *it->second;
        if (view.snap().revision == s.revision && !added) continue;
        applyCommon(view, s);
    }
    restack();
    if (added) layoutClient();
}

void FormWindow::applyCommon(View& view, const ControlSnap& s) {
    view.setSnap(s);
    QWidget* w = view.widget();
    if (s.kind == ControlKind::Line) {
        w->setGeometry(LineView::Box(s).adjusted(0, 0, 1, 1));
    } else if (s.kind != ControlKind::StatusBar) {
        const int x = Px(s.left), y = Px(s.top);
        w->setGeometry(x, y, std::max(0, Px(s.left + s.width) - x), std::max(0, Px(s.top + s.height) - y));
    }
    if (s.kind != ControlKind::Image && s.kind != ControlKind::Label && s.kind != ControlKind::StatusBar)
        w->setFont(ControlFont(s.fontName, s.fontSize, s.fontBold));
    w->setEnabled(s.enabled);
    if (w->toolTip() != Q(s.toolTip)) w->setToolTip(Q(s.toolTip));
    applyCursor(view);
    view.show(s);
    w->setVisible(s.visible);
}

// The hourglass of the form covers every control while the logic is busy.
void FormWindow::applyCursor(View& view) {
    const ControlSnap& s = view.snap();
    QWidget* w = view.widget();
    if (formPointer_ == 11) w->setCursor(Qt::WaitCursor);
    else if (s.mousePointer != 0) w->setCursor(cursorFor(s.mousePointer, s.mouseIcon));
    else w->unsetCursor();
}

// Windowed controls above the drawn ones; within each layer by z-order. When
// one control alone has moved (ZOrder on one card), only that one is restacked,
// so that the rest of the window needn't be repainted.
void FormWindow::restack() {
    std::vector<View*> order = ordered_;
    std::stable_sort(order.begin(), order.end(), [](View* a, View* b) {
        const bool wa = IsWindowed(a->snap().kind), wb = IsWindowed(b->snap().kind);
        if (wa != wb) return !wa;
        return a->snap().z < b->snap().z;
    });
    if (order == stacked_) return;
    auto without = [](std::vector<View*> list, View* v) {
        list.erase(std::remove(list.begin(), list.end(), v), list.end());
        return list;
    };
    View* moved = nullptr;
    if (order.size() == stacked_.size()) {
        size_t d = 0;
        while (order[d] == stacked_[d]) ++d;
        for (View* candidate : {order[d], stacked_[d]})
            if (!moved && without(order, candidate) == without(stacked_, candidate)) moved = candidate;
    }
    if (moved) {
        const size_t at = static_cast<size_t>(std::find(order.begin(), order.end(), moved) - order.begin());
        if (at + 1 < order.size() && order[at + 1]->widget()->parentWidget() == moved->widget()->parentWidget())
            moved->widget()->stackUnder(order[at + 1]->widget());
        else
            moved->widget()->raise();
    } else {
        for (View* v : order) v->widget()->raise();
    }
    stacked_ = std::move(order);
}

void FormWindow::layoutClient() {
    const int menu = menuBar_ ? menuBar_->sizeHint().height() : 0;
    if (menuBar_) menuBar_->setGeometry(0, 0, width(), menu);
    client_->setGeometry(0, menu, width(), std::max(0, height() - menu));
    if (statusBar_) {
        const int h = std::max(22, Px(statusBar_->snap().height));
        statusBar_->widget()->setGeometry(0, client_->height() - h, client_->width(), h);
        statusBar_->widget()->raise();
    }
}

void FormWindow::applyMenus(const FormSnap& form) {
    if (!menuBar_) return;
    std::vector<const ControlSnap*> menus;
    std::string shape;
    for (const ControlSnap& s : form.controls) {
        if (s.kind != ControlKind::Menu) continue;
        menus.push_back(&s);
        shape += s.key() + '<' + s.container + (s.text == "-" ? "|-" : "") + ';';
    }
    auto hasChildren = [&](const ControlSnap& s) {
        return std::any_of(menus.begin(), menus.end(), [&](const ControlSnap* m) { return m->container == s.name; });
    };
    if (shape != menuShape_) {
        menuShape_ = shape;
        menuBar_->clear();
        actions_.clear();
        std::map<std::string, QMenu*> submenus;
        for (const ControlSnap* s : menus) {
            QAction* action = nullptr;
            if (s->container.empty()) {
                QMenu* menu = menuBar_->addMenu(Q(s->text));
                submenus[s->name] = menu;
                action = menu->menuAction();
                const std::string name = s->name;
                const int index = s->index;
                connect(menu, &QMenu::aboutToShow, this, [this, name, index] {
                    InputEvent e;
                    e.kind = InputKind::Click;
                    e.control = name;
                    e.index = index;
                    send(e);
                });
            } else {
                auto parent = submenus.find(s->container);
                if (parent == submenus.end()) continue;
                if (s->text == "-") {
                    action = parent->second->addSeparator();
                } else if (hasChildren(*s)) {
                    QMenu* menu = parent->second->addMenu(Q(s->text));
                    submenus[s->name] = menu;
                    action = menu->menuAction();
                } else {
                    action = parent->second->addAction(Q(s->text));
                    const std::string name = s->name;
                    const int index = s->index;
                    connect(action, &QAction::triggered, this, [this, action, name, index] {
                        action->setChecked(!action->isChecked());  // the logic decides the tick
                        InputEvent e;
                        e.kind = InputKind::Click;
                        e.control = name;
                        e.index = index;
                        send(e);
                    });
                }
            }
            actions_[s->key()] = action;
        }
    }
    for (const ControlSnap* s : menus) {
        auto it = actions_.find(s->key());
        if (it == actions_.end()) continue;
        QAction* action = it->second;
        if (s->text != "-") action->setText(Q(s->text));
        action->setVisible(s->visible);
        action->setEnabled(s->enabled);
        if (!action->menu() && !action->isSeparator()) {
            action->setCheckable(s->checked);
            action->setChecked(s->checked);
        }
    }
}

void FormWindow::closeEvent(QCloseEvent* event) {
    // The logic decides: QueryUnload may keep the window.
    event->ignore();
    InputEvent e;
    e.kind = InputKind::Close;
    send(e);
}

void FormWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    layoutClient();
    if (!isVisible() || windowState() & (Qt::WindowMinimized | Qt::WindowMaximized)) return;
    const QSize client = client_->size();
    if (client == appliedClient_) return;
    appliedClient_ = client;
    InputEvent e;
    e.kind = InputKind::Resize;
    e.width = (client.width() + 2 * FrameMetrics::kBorder) * 15;
    e.height = (client.height() + 2 * FrameMetrics::kBorder + FrameMetrics::kTitle + (hasMenu_ ? FrameMetrics::kMenu : 0)) * 15;
    modelWidth_ = e.width;
    modelHeight_ = e.height;
    send(e);
}

void FormWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange) return;
    const int state = windowState() & Qt::WindowMinimized ? 1 : windowState() & Qt::WindowMaximized ? 2 : 0;
    if (state == modelState_) return;
    modelState_ = state;
    InputEvent e;
    e.kind = InputKind::WindowState;
    e.value = state;
    send(e);
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
    int key = 0;
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) key = 13;
    else if (event->key() == Qt::Key_Escape) key = 27;
    else if (event->text().size() == 1 && event->text()[0].unicode() < 128 && event->text()[0].isPrint())
        key = event->text()[0].unicode();
    if (!key) {
        QWidget::keyPressEvent(event);
        return;
    }
    // The key goes to the control with the focus, or else to the first one that takes keys.
    const View* target = nullptr;
    for (View* v : ordered_) {
        if (v->widget()->hasFocus()) target = v;
    }
    if (!target) {
        for (View* v : ordered_)
            if (v->widget()->isVisible() && v->widget()->isEnabled() && IsWindowed(v->snap().kind)) {
                target = v;
                break;
            }
    }
    if (target) target->send(InputKind::Key, 0, {}, key);
}

// ---- renderer ---------------------------------------------------------------------

Renderer::Renderer(Sink sink, QObject* parent) : QObject(parent), sink_(std::move(sink)) {}

Renderer::~Renderer() { windows_.clear(); }

void Renderer::apply(const std::shared_ptr<const Snapshot>& snapshot) {
    std::map<std::string, const FormSnap*> live;
    for (const FormSnap& form : snapshot->forms) live[form.name] = &form;
    for (auto it = windows_.begin(); it != windows_.end();) {
        auto found = live.find(it->first);
        if (found == live.end() || found->second->instance != it->second->instance())
            it = windows_.erase(it);
        else
            ++it;
    }
    // Hidden forms first, so that a window about to be shown comes up last, on top.
    for (int pass = 0; pass < 2; ++pass) {
        for (const FormSnap& form : snapshot->forms) {
            if (form.visible != (pass == 1)) continue;
            auto& window = windows_[form.name];
            if (!window) window = std::make_unique<FormWindow>(*this, form);
            window->apply(form);
            if (form.visible) shownOnce_ = true;
        }
    }
}

void Renderer::firstPainted() {
    if (firstPaint_) {
        auto hook = std::move(firstPaint_);
        firstPaint_ = nullptr;
        hook();
    }
}

std::map<std::string, QWidget*> Renderer::visibleWindows() const {
    std::map<std::string, QWidget*> out;
    for (const auto& [name, window] : windows_)
        if (window->isVisible()) out[name] = window.get();
    return out;
}

void Renderer::openMessageBox(const MessageBox& box) {
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    switch (box.icon) {
        case MsgIcon::None: break;
        case MsgIcon::Critical: icon = QMessageBox::Critical; break;
        case MsgIcon::Question: icon = QMessageBox::Question; break;
        case MsgIcon::Exclamation: icon = QMessageBox::Warning; break;
        case MsgIcon::Information: icon = QMessageBox::Information; break;
    }
    QMessageBox::StandardButtons buttons = QMessageBox::Ok;
    if (box.buttons == MsgButtons::OKCancel) buttons = QMessageBox::Ok | QMessageBox::Cancel;
    if (box.buttons == MsgButtons::YesNo) buttons = QMessageBox::Yes | QMessageBox::No;
    QWidget* parent = nullptr;
    for (const auto& [name, window] : windows_)
        if (window->isVisible() && (!parent || window->isActiveWindow())) parent = window.get();
    const QString title = box.title.empty() ? QStringLiteral("Quillmark's Card Haven") : Q(box.title);
    auto* dialog = new QMessageBox(icon, title, Q(box.text), buttons, parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(Qt::ApplicationModal);
    const MsgButtons kind = box.buttons;
    connect(dialog, &QMessageBox::finished, this, [this, kind](int result) {
        InputEvent e;
        e.kind = InputKind::MessageBoxAnswer;
        switch (result) {
            case QMessageBox::Yes: e.answer = MsgAnswer::Yes; break;
            case QMessageBox::No: e.answer = MsgAnswer::No; break;
            case QMessageBox::Cancel: e.answer = MsgAnswer::Cancel; break;
            case QMessageBox::Ok: e.answer = MsgAnswer::OK; break;
            default:
                e.answer = kind == MsgButtons::YesNo ? MsgAnswer::No : kind == MsgButtons::OKCancel ? MsgAnswer::Cancel
                                                                                                     : MsgAnswer::OK;
        }
        sink_(e);
    });
    dialog->show();
}

}  // namespace ch
