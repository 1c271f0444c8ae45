// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/renderer.h"

#include <QCloseEvent>
#include <QCursor>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QWidget>
#include <algorithm>

#include "qt/cardart.h"
#include "qt/fonts.h"
#include "suite/cards.h"

namespace ch {

namespace {

// Controls drawn on the form itself (labels, images, shapes, lines) lie below
// the controls that are windows of their own: they are painted on the form,
// and the form is beneath its child windows.
bool IsWindowed(ControlKind kind) {
    switch (kind) {
        case ControlKind::Label:
        case ControlKind::Image:
        case ControlKind::Shape:
        case ControlKind::Line: return false;
        default: return true;
    }
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

class FormWindow : public QWidget, public ViewHost {
public:
    FormWindow(Renderer& renderer, const FormSnap& form);
    ~FormWindow() override;

    uint64_t instance() const { return instance_; }
    const std::string& formName() const { return name_; }
    void apply(const FormSnap& form);
    void send(InputEvent event) const override {
        event.form = name_;
        renderer_->send(event);
    }
    int formPointer() const { return formPointer_; }
    QCursor cursorFor(int pointer, int icon);

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

    Renderer* renderer_;
    std::string name_;
    uint64_t instance_;
    uint64_t focusSerial_ = 0;
    QMenuBar* menuBar_ = nullptr;
    QWidget* client_;
    std::map<std::string, std::unique_ptr<View>> views_;
    std::vector<View*> ordered_;
    std::string menuShape_;
    std::vector<ControlSnap> menus_;  // as last sent, in the form's order
    std::map<std::string, QAction*> actions_;
    bool hasMenu_ = false;
    int modelWidth_ = -1, modelHeight_ = -1, modelState_ = -1;
    QSize appliedClient_;
    bool placed_ = false;
    bool modal_ = false;
    bool modalitySet_ = false;
    int formPointer_ = 0;
    int formIcon_ = -1;
    std::map<int, QCursor> iconCursors_;  // pointer 99, by catalogue entry
    std::vector<View*> stacked_;
    View* statusBar_ = nullptr;
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

QCursor FormWindow::cursorFor(int pointer, int icon) {
    switch (pointer) {
        case 1: return Qt::ArrowCursor;
        case 2: return Qt::CrossCursor;
        case 3: return Qt::IBeamCursor;
        case 11:
        case 13: return Qt::WaitCursor;
        case 12: return Qt::ForbiddenCursor;
        case 99: {
            if (icon <= 0) return Qt::ArrowCursor;
            // Made once per picture: each new bitmap cursor is a new cursor of the window system.
            auto it = iconCursors_.find(icon);
            if (it == iconCursors_.end()) {
                const QPixmap pixmap = CardPixmap(icon, 32, 32, devicePixelRatioF());
                const bool hand = icon == ImageCatalogue::kPointer;
                it = iconCursors_.emplace(icon, QCursor(pixmap, hand ? 9 : 0, hand ? 1 : 0)).first;
            }
            return it->second;
        }
        default: return Qt::ArrowCursor;
    }
}

QSize FormWindow::clientSizeFor(int widthTw, int heightTw) const {
    const int w = Px(widthTw) - 2 * FrameMetrics::kBorder;
    const int h = Px(heightTw) - 2 * FrameMetrics::kBorder - FrameMetrics::kTitle - (hasMenu_ ? FrameMetrics::kMenu : 0);
    return QSize(std::max(w, 60), std::max(h, 30));
}

// Only what changed is set: the header of a form comes whenever anything of
// it changed, the controls only when they did.
void FormWindow::apply(const FormSnap& form) {
    setWindowTitle(Q(form.caption));
    QPalette pal = client_->palette();
    if (pal.color(QPalette::Window) != Rgb(form.backColor)) {
        pal.setColor(QPalette::Window, Rgb(form.backColor));
        client_->setPalette(pal);
    }
    if (formPointer_ != form.mousePointer || formIcon_ != form.mouseIcon) {
        const bool pointerChanged = formPointer_ != form.mousePointer;
        formPointer_ = form.mousePointer;
        formIcon_ = form.mouseIcon;
        setCursor(cursorFor(form.mousePointer, form.mouseIcon));
        if (pointerChanged)
            for (View* view : ordered_) applyCursor(*view);
    }

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
        if (form.modal != modal_ || !modalitySet_) {
            modal_ = form.modal;
            modalitySet_ = true;
            setWindowModality(modal_ ? Qt::ApplicationModal : Qt::NonModal);
        }
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
            View* view = CreateView(*this, s, parent);
            if (!view) continue;
            view->widget()->setObjectName(Q(key));
            it = views_.emplace(key, std::unique_ptr<View>(view)).first;
            ordered_.push_back(view);
            if (s.kind == ControlKind::StatusBar) statusBar_ = view;
            added = true;
        }
        applyCommon(*it->second, s);
    }
    if (!form.controls.empty()) restack();
    if (added) layoutClient();
}

void FormWindow::applyCommon(View& view, const ControlSnap& s) {
    view.setSnap(s);
    QWidget* w = view.widget();
    if (s.kind == ControlKind::Line) {
        w->setGeometry(LineViewBox(s).adjusted(0, 0, 1, 1));
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
// A cursor is set only when it changes: on X11 each set is a round trip to
// the display.
void FormWindow::applyCursor(View& view) {
    const ControlSnap& s = view.snap();
    int64_t want = 0;
    if (formPointer_ == 11) want = -11;
    else if (s.mousePointer != 0) want = int64_t{s.mousePointer} << 32 | s.mouseIcon;
    if (view.appliedCursor() == want) return;
    view.setAppliedCursor(want);
    QWidget* w = view.widget();
    if (want == -11) w->setCursor(Qt::WaitCursor);
    else if (want != 0) w->setCursor(cursorFor(s.mousePointer, s.mouseIcon));
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

// The menus as last sent are kept; the bar is built anew only when their
// shape changed, and set only when one of them did.
void FormWindow::applyMenus(const FormSnap& form) {
    if (!menuBar_) return;
    bool changed = false;
    for (const ControlSnap& s : form.controls) {
        if (s.kind != ControlKind::Menu) continue;
        auto known = std::find_if(menus_.begin(), menus_.end(),
                                  [&s](const ControlSnap& m) { return m.name == s.name && m.index == s.index; });
        if (known != menus_.end()) *known = s;
        else menus_.push_back(s);
        changed = true;
    }
    if (!changed) return;
    std::vector<const ControlSnap*> menus;
    std::string shape;
    for (const ControlSnap& s : menus_) {
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
            if (!form.changed || form.visible != (pass == 1)) continue;
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