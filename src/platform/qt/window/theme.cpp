#include "platform/qt/window/theme.h"

#include "platform/qt/window/swatches.h"

#include <QPalette>
#include <QProxyStyle>

#include <array>

namespace mirtane {
namespace {

struct Shade {
    QPalette::ColorRole role;
    QRgb color;
};

constexpr std::array<Shade, 12> shades{{
    {QPalette::Window, 0xFF25282E},
    {QPalette::WindowText, 0xFFDDE2EA},
    {QPalette::Base, 0xFF16181C},
    {QPalette::AlternateBase, 0xFF1C1F24},
    {QPalette::Text, 0xFFFFFFFF},
    {QPalette::Button, 0xFF32363E},
    {QPalette::ButtonText, 0xFFDDE2EA},
    {QPalette::ToolTipBase, 0xFFF3F1E4},
    {QPalette::ToolTipText, 0xFF1C1F24},
    {QPalette::Highlight, 0xFF2F6FAB},
    {QPalette::HighlightedText, 0xFFFFFFFF},
    {QPalette::PlaceholderText, 0xFF7C8593},
}};

constexpr QRgb greyed = 0xFF6C7480;

// No rule gives text boxes a colour: that is the control's own.
const char* const rules = R"(
    QMenuBar { background: #1c1f24; padding: 2px 4px; border-bottom: 1px solid #14161a; }
    QMenuBar::item { padding: 5px 7px; border-radius: 4px; background: transparent; }
    QMenuBar::item:selected { background: #2f6fab; color: white; }
    QToolButton#qt_menubar_ext_button { qproperty-icon: url(:/icons/more.svg); background: #3a4049;
                                        border: 1px solid #57b6ff; }
    QMenuBar::item:disabled { color: #6c7480; }
    QMenu { background: #2b2f36; border: 1px solid #14161a; padding: 4px; }
    QMenu::item { padding: 5px 28px 5px 26px; border-radius: 4px; }
    QMenu::item:selected { background: #2f6fab; color: white; }
    QMenu::item:disabled { color: #6c7480; background: transparent; }
    QMenu::separator { height: 1px; background: #3d434d; margin: 4px 8px; }
    QToolTip { background: #f3f1e4; color: #1c1f24; border: 1px solid #14161a; padding: 3px 5px; }

    QLabel { color: #9aa4b2; font-size: 11px; }
    QLabel:disabled { color: #6c7480; }
    QLabel#heading { color: #9aa4b2; font-weight: 600; }
    QLabel#snaplab { color: #ffcf5c; min-height: 18px; font-size: 12px; }
    QWidget#notice { background: #3a3420; border-top: 1px solid #6b5a1f; }
    QLabel#sentence { color: #ffe6a3; font-size: 13px; }
    QWidget#notice QPushButton { padding: 3px 14px; }
    QWidget#status { background: #1c1f24; border-top: 1px solid #14161a; }
    QWidget#status[keys="true"] { border-top-color: #57b6ff; }
    QLabel#promptlab { color: #f2f5f9; font-size: 13px; }
    QLabel#readlab { color: #ffcf5c; font-size: 13px; }
    QLabel#countlab { color: #f2f5f9; font-size: 13px; }
    QLabel#pointerlab { color: #9aa4b2; font-size: 13px; qproperty-alignment: 'AlignRight | AlignVCenter'; }

    QToolButton { background: #2e323a; border: 1px solid #383d46; border-radius: 5px; padding: 0; }
    QToolButton:hover { background: #3a404a; border-color: #4b5361; }
    QToolButton:pressed { background: #1d4b75; }
    QToolButton:checked { background: #1d4b75; border: 2px solid #2f8fd8; }
    QToolButton:focus { border: 2px solid white; }
    QToolButton:checked:focus { border: 2px dashed white; background: #1f4f7a; }
    QToolButton:disabled { background: #282b31; border-color: #2e323a; color: #6c7480; }

    QLineEdit { background: #16181c; border: 1px solid #3d434d; border-radius: 4px; padding: 3px 6px; }
    QLineEdit:focus { border-color: #57b6ff; }
    QLineEdit#entry { padding: 6px 8px; }
    QListView { background: #16181c; border: 1px solid #3d434d; border-radius: 4px; padding: 2px; }
    QListView:focus { border-color: #57b6ff; }
    QListView::item { padding: 2px 4px 2px 1px; border-radius: 3px; border-left: 3px solid transparent; }
    QListView::item:hover { background: #262b33; }
    QListView::item:selected { background: #2f6fab; color: white; border-left: 3px solid #9fd6ff; }
    QPlainTextEdit { background: #16181c; border: 1px solid #3d434d; border-radius: 4px; }
    QPlainTextEdit:focus { border-color: #57b6ff; }

    QPushButton { background: #32363e; border: 1px solid #454c58; border-radius: 5px; padding: 6px 18px;
                  min-width: 70px; }
    QPushButton:hover { background: #3d434d; }
    QPushButton:pressed { background: #1d4b75; }
    QPushButton:focus { border: 2px solid white; padding: 5px 17px; }
    QPushButton:disabled { color: #6c7480; }

    QScrollBar:vertical { background: transparent; width: 10px; margin: 2px; }
    QScrollBar::handle:vertical { background: #4a515d; border-radius: 3px; min-height: 24px; }
    QScrollBar:horizontal { background: transparent; height: 10px; margin: 2px; }
    QScrollBar::handle:horizontal { background: #4a515d; border-radius: 3px; min-width: 24px; }
    QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
)";

// The sizes that no rule reaches.
class Look : public QProxyStyle {
  public:
    Look() : QProxyStyle(QStringLiteral("Fusion")) {}

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override
    {
        constexpr int menuBarGoesOn = 24;
        if (metric == PM_ToolBarExtensionExtent) return menuBarGoesOn;
        // Menus ask for it in nobody's name while they paint; how high their entries are they ask in their
        // own.
        const bool ofMenu = metric == PM_SmallIconSize && widget == nullptr;
        return ofMenu ? swatchSize.width() : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

QPalette darkPalette()
{
    QPalette palette;
    for (const Shade& shade : shades) palette.setColor(shade.role, QColor::fromRgb(shade.color));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, QColor::fromRgb(greyed));
    }
    return palette;
}

} // namespace

void applyTheme(QApplication& application)
{
    QApplication::setStyle(new Look); // the application has it
    QApplication::setPalette(darkPalette());
    application.setStyleSheet(QString::fromLatin1(rules));
}

} // namespace mirtane
