#pragma once

#include <Zanthic/ZanthicGlobal.h>

#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QRect>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtGui/QBrush>
#include <QtGui/QColor>
#include <QtGui/QPainterPath>
#include <QtWidgets/QFileDialog>

QT_BEGIN_NAMESPACE
class QDomElement;
class QKeyEvent;
class QLayout;
class QLinearGradient;
class QPainter;
class QWidget;
QT_END_NAMESPACE

/// \file
/// The words of the style system and its free functions.
///
/// Everything here runs on the GUI thread. Nothing reports an error: a function that can't do its work gives an
/// empty value (an empty text, 0, an invalid colour, a default brush).

namespace Custom {
Q_NAMESPACE_EXPORT(ZANTHIC_EXPORT)

/// The visual state that an attribute is looked up for.
enum ItemStatus : int {
    Normal = 0, ///< resting
    Hover = 1, ///< the pointer is over the control
    Pressed = 2, ///< pressed, sunken
    Disabled = 3 ///< the control is disabled
};
Q_ENUM_NS(ItemStatus)

/// An edge of a box. Arrays of four values, one an edge, are indexed by these numbers.
enum BorderEdge : int { Left = 0, Right = 1, Top = 2, Bottom = 3, AllEdge = 4 };
Q_ENUM_NS(BorderEdge)

/// A corner of a box. Arrays of four values, one a corner, are indexed by these numbers.
enum BorderCorner : int { LeftTop = 0, RightTop = 1, LeftBottom = 2, RightBottom = 3, AllCorner = 4 };
Q_ENUM_NS(BorderCorner)

/// The line style of one border edge, for cDrawBorder(). Themed boxes are always BorderSolid.
enum BorderStyle : int {
    BorderNone = 0,
    BorderDotted = 1,
    BorderDashed = 2,
    BorderSolid = 3,
    BorderDouble = 4,
    BorderDotDash = 5,
    BorderDotDotDash = 6,
    BorderGroove = 7,
    BorderRidge = 8,
    BorderInset = 9,
    BorderOutset = 10
};
Q_ENUM_NS(BorderStyle)

/// Which features of a box are in use for a control; bits that can be joined by "or".
/// A style document gives their sum in the attribute "ObjectParameter".
enum ObjectParameter : int {
    ParamBackgroundImage = 1, ///< paint "BackgroundImage"
    ParamBackgroundColor = 2, ///< fill with "BackgroundColor"
    ParamBorderWidth = 4, ///< read "BorderWidth", paint a border
    ParamBorderRadius = 8, ///< read "BorderRadius", round the corners and the window mask
    ParamBorderColor = 16, ///< read "BorderColor"
    ParamBorderImage = 32, ///< paint "BorderImage" instead of a drawn border
    ParamBaseBackgroundImage = 64, ///< paint "BaseBackgroundImage" when there is no ParamBackgroundColor
    ParamUserFontFamily = 128, ///< the control keeps its own font family
    ParamColorRect = 256 ///< paint the colour rectangles
};
Q_ENUM_NS(ObjectParameter)

constexpr ObjectParameter operator|(ObjectParameter a, ObjectParameter b)
{
    return static_cast<ObjectParameter>(static_cast<int>(a) | static_cast<int>(b));
}

/// The selectors that every control may use.
enum CommonStyleSelector : int { Default = 0, GrayWhite = 1, DarkBlack = 2 };
Q_ENUM_NS(CommonStyleSelector)

/// Which painter CustomObject::cDrawWidget() runs.
enum CustomWidgetType : int {
    WidgetCheckBox = 0,
    WidgetPushButton = 1,
    WidgetRadioButton = 2,
    WidgetComboBox = 3,
    WidgetGeneric = 4, ///< background and border only
    WidgetDrawSlider = 5,
    WidgetDotSlider = 6,
    WidgetTwoHandleSlider = 7,
    WidgetProcessSlider = 8
};
Q_ENUM_NS(CustomWidgetType)

/// The languages that the library knows a font family for.
enum Language : int { Zh_cn = 0, En_us = 1 };
Q_ENUM_NS(Language)

/// The style sheet templates, see styleSheet().
enum StyleSheetType : int {
    SheetGroupBox = 0,
    SheetHeaderView = 1,
    SheetLineEdit = 2,
    SheetListView = 3,
    SheetScrollBar = 4,
    SheetSlider = 5,
    SheetSpinBox = 6,
    SheetDoubleSpinBox = 7,
    SheetTabBar = 8,
    SheetTableView = 9,
    SheetTreeWidget = 10
};
Q_ENUM_NS(StyleSheetType)

/// \name Words
/// The text forms from which attribute keys are built. A number outside the enumeration gives the last form
/// named here.
/// \{
ZANTHIC_EXPORT QString language2String(Language language); ///< "Zh_cn", "En_us", else empty
ZANTHIC_EXPORT QString commonStyleSelector(CommonStyleSelector selector); ///< the name; else "Default"
ZANTHIC_EXPORT QString itemStatus2String(ItemStatus status); ///< the name; Normal and all else empty
ZANTHIC_EXPORT QString borderEdge2String(BorderEdge edge); ///< the name; else "AllEdge"
ZANTHIC_EXPORT QString borderCorner2String(BorderCorner corner); ///< the name; else "AllCorner"
/// \}

/// \name Colours, brushes and gradients
/// \{
/// "rgba(r,g,b,a)" with decimal integers from 0 to 255.
ZANTHIC_EXPORT QString color2String(const QColor &color);
/// The text of a linear gradient; string2Gradient() reads it.
ZANTHIC_EXPORT QString gradient2String(const QLinearGradient &gradient);
/// Reads a gradient text. With a \p rect that isn't empty the coordinates are scaled by its size. A text that is
/// no gradient gives a default gradient and sets \p ok (which may be null) to false.
ZANTHIC_EXPORT QLinearGradient string2Gradient(const QString &text, const QRect &rect = QRect(), bool *ok = nullptr);
/// The text of a linear gradient brush, or of the brush's colour for every other brush.
ZANTHIC_EXPORT QString brush2String(const QBrush &brush);
/// Reads a colour text: "#RRGGBB", "rgba(r,g,b,a)", "DB_COLOR_" and the name of a skin colour, a gradient text, or
/// else the path of an image. \p rect scales a gradient. A chain of skin colours that comes back to itself gives a
/// default brush.
ZANTHIC_EXPORT QBrush string2Brush(const QString &text, const QRect &rect = QRect());
/// The colour of string2Brush(); invalid where that gives no brush.
ZANTHIC_EXPORT QColor string2Color(const QString &text);
/// The skin colour \p name, with or without "DB_COLOR_" in front, in any case. Takes up no document by itself.
ZANTHIC_EXPORT QBrush getDataBaseColor(const QString &name, const QRect &rect = QRect());
/// \}

/// \name Style documents
/// The base document ":/Zanthic/QSS/CustomStyleSheet.xml" is taken up by the first use of the style system.
/// \{
/// Creates the process-wide style data when it does not exist.
ZANTHIC_EXPORT void initStyleSheetDataPointer();
/// Takes up one document, once. A document that can't be read is passed over in silence until the next changeSkin().
ZANTHIC_EXPORT void initXmlInfo(const QString &path);
/// Takes up the base document, then the application's own document \p path, whose values override it key by key.
/// The global font family is that of the first language afterwards: call setLanguage() after adding documents.
ZANTHIC_EXPORT void addXmlPath(const QString &path);
/// Files one "Class" element of a document into \p target.
ZANTHIC_EXPORT void addOneClassInfo(const QDomElement &classElement, QMap<QString, QMap<QString, QString>> &target);
/// Reads one skin colour file into the colour table; later entries win.
ZANTHIC_EXPORT void readSkinColorFile(const QString &path);
/// The whole file as text up to its first NUL byte; empty when it can't be opened.
ZANTHIC_EXPORT QString readFileContent(const QString &path);
/// Reloads all documents from their paths and tells every widget of the application, synchronously, by a
/// ChangeSkinEvent. Make the same paths deliver the new skin's files first.
ZANTHIC_EXPORT void changeSkin();
/// \}

/// \name Attributes without a control
/// \{
/// The attributes of one selector of one class. All three names are given in lower case; \p parentClassName is
/// empty for a top-level class.
ZANTHIC_EXPORT QMap<QString, QString> getAttrMap(
    const QString &className, const QString &selector, const QString &parentClassName = QString());
/// One value straight from the tree, without fallback to another status or to "Default".
ZANTHIC_EXPORT QString attributeValue(const QString &className, QString attribute, const QString &selector,
    const QStringList &subSelectors = QStringList());
/// \}

/// \name Language and fonts
/// \{
/// Reads the font families of the class "Global" from the documents.
ZANTHIC_EXPORT void initFontFamily();
/// The family in force; empty without style data. Takes up nothing.
ZANTHIC_EXPORT QString globalFontFamily();
/// The family of one language; empty when there is none.
ZANTHIC_EXPORT QString globalFontFamily(Language language);
/// The current language; En_us until told otherwise. Takes up nothing.
ZANTHIC_EXPORT Language language();
/// Sets the language and the font family in force. Sends nothing: install the translator of the language next, Qt
/// then tells every widget.
ZANTHIC_EXPORT void setLanguage(Language language);
/// Replaces the family of one language. Takes effect with the next setLanguage(), and in style sheets with the next
/// changeSkin().
ZANTHIC_EXPORT void setGlobalFontFamily(Language language, const QString &family);
/// Reads the style sheet templates and fills in the font families, once for each skin.
ZANTHIC_EXPORT void initStyleSheets();
/// The finished style sheet of one type; empty when its file can't be read. The reference holds until changeSkin().
ZANTHIC_EXPORT const QString &styleSheet(StyleSheetType type);
/// \}

/// \name Application services
/// \{
/// Adds a key combination to the hot key \p id. An id may have several.
ZANTHIC_EXPORT void registerHotKey(int id, Qt::KeyboardModifiers modifiers, Qt::Key key);
/// Removes the hot key \p id with all its combinations.
ZANTHIC_EXPORT void unRegisterHotKey(int id);
/// Removes all hot keys.
ZANTHIC_EXPORT void clearHotKey();
/// Posts a HotKeyEvent to the main dialog when \p event is a hot key, and accepts \p event. At most one in 200 ms,
/// over all hot keys together; none while a modal window is open.
ZANTHIC_EXPORT void activeHotKey(QKeyEvent *event);
/// Whether hot keys work: no modal window is open.
ZANTHIC_EXPORT bool enableActiveShortcut();
/// Sets the receiver of hot key events. It is not owned; one that is destroyed is forgotten.
ZANTHIC_EXPORT void setMainDialog(QWidget *dialog);
ZANTHIC_EXPORT QWidget *mainDialog(); ///< the receiver of hot key events, null at start
ZANTHIC_EXPORT QString version(); ///< the version and the date of the build, as in "V2.0.0_20240229"
/// A new box layout without margins and spacing. The caller owns it until a widget or layout takes it.
ZANTHIC_EXPORT QLayout *createLayout(Qt::Orientation orientation);
/// Takes \p child out of \p layout or of any layout nested in it. \p child isn't deleted.
ZANTHIC_EXPORT void removeChildLayoutItem(QLayout *layout, QLayout *child);
/// \}

/// \name File dialogs
/// They block until the dialog is closed, and give an empty text when it is cancelled. Choosing a directory that can't
/// be written brings up a warning; the choice is returned all the same.
/// \{
/// Asks for a directory, starting in \p dir, and gives its path.
ZANTHIC_EXPORT QString getExistingDirectory(QWidget *parent = nullptr, const QString &caption = QString(),
    const QString &dir = QString(), QFileDialog::Options options = QFileDialog::ShowDirsOnly);
/// Asks for the name of a file to save, starting in \p dir with \p initialName filled in, and gives its path.
/// A name that ends neither in \p suffix nor in one of \p suffixes gets \p suffix; a leading "." of a suffix may be
/// left out, case counts. An empty \p suffix leaves the name alone. \p selectedFilter, which may be null, holds the
/// name filter that is chosen, at start and at the end.
ZANTHIC_EXPORT QString getSaveFileName(QWidget *parent = nullptr, const QString &caption = QString(),
    const QString &dir = QString(), const QString &filter = QString(), const QString &initialName = QString(),
    const QString &suffix = QString(), const QStringList &suffixes = QStringList(), QString *selectedFilter = nullptr,
    QFileDialog::Options options = QFileDialog::Options());
/// \}

/// \name Border geometry
/// Boxes with a width, style and colour for each edge and an elliptical radius for each corner. Arrays hold four
/// values, indexed by BorderEdge or BorderCorner.
/// \{
/// The four radii, at least 0 each. A pair of radii that doesn't fit into its side of \p rect becomes (0, 0).
ZANTHIC_EXPORT void cNormalizeRadii(
    const QRect &rect, const QSize *radii, QSize *leftTop, QSize *rightTop, QSize *leftBottom, QSize *rightBottom);
/// The path through the middle of the border, to which a fill is clipped; empty for a box with square corners.
ZANTHIC_EXPORT QPainterPath cBorderClip(QRect rect, const int *borders, const QSize *radii);
/// Draws the border of a box.
ZANTHIC_EXPORT void cDrawBorder(QPainter *painter, const QRect &rect, const BorderStyle *styles, const int *borders,
    const QBrush *colors, const QSize *radii);
/// Draws one edge in its band (x1, y1)-(x2, y2) with mitres of \p dw1 and \p dw2 at its start and end.
ZANTHIC_EXPORT void cDrawEdge(QPainter *painter, double x1, double y1, double x2, double y2, double dw1, double dw2,
    BorderEdge edge, BorderStyle style, QBrush brush);
/// Draws an edge's halves of the two corners at its ends.
ZANTHIC_EXPORT void cDrawRoundedCorners(QPainter *painter, double x1, double y1, double x2, double y2, const QSizeF &r1,
    const QSizeF &r2, BorderEdge edge, BorderStyle style, QBrush brush);
/// \}

} // namespace Custom
