#pragma once

#include <Zanthic/Custom.h>

#include <QtCore/QMap>
#include <QtCore/QStringList>
#include <QtCore/QVector>

/// What is asked of the style engine.
struct AttributeQuery
{
    QString className;
    QString parentClass; ///< empty for a top-level class
    QString selector = QStringLiteral("Default");
    QStringList subSelectors;
    QString attribute;
    Custom::ItemStatus status = Custom::Normal;

    /// The key that the attribute has in \p itemStatus, as tables hold it.
    QString key(Custom::ItemStatus itemStatus) const;
};

/// The sub-selectors that \p text names, separated by commas; none for a blank text.
QStringList subSelectorsOf(const QString &text);

/// The overrides that a program made on one control, in the order in which they act. The engine itself tells only
/// the value that comes out, so whoever wants to explain it keeps a record.
class OverrideLog
{
public:
    /// To be called with each CustomObject::cSetAttributeValue().
    void set(const AttributeQuery &query, const QString &value);
    /// To be called when the control takes the document's values anew: a reset, a skin change, another selector.
    void documentTaken() { m_wiped.clear(); }

    QString value(const QString &key) const { return m_values.value(key); }
    bool wipes(const QString &key) const; ///< a first override emptied the document's value

private:
    QMap<QString, QString> m_values; ///< by key
    QStringList m_attributes; ///< overridden at least once; the wipe happens with the first time only
    QStringList m_wiped; ///< what wiped keys begin with, in lower case
};

/// A place where a value may stand.
enum class Place { Override, Selector, DefaultSelector };

/// One look at one place on the way to the value.
struct ResolutionStep
{
    QString key;
    Custom::ItemStatus status = Custom::Normal;
    Place place = Place::Override;
    QString value; ///< as it stands there; empty for none
    bool wiped = false; ///< the document has a value, but an override has emptied it
};

/// The answer to a query and the way to it.
struct Resolution
{
    QString value; ///< what the control gets; empty for "#Empty#"
    bool found = false; ///< a value stands at the last step, be it "#Empty#"
    QVector<ResolutionStep> steps; ///< in the order of the search; the last one holds the value when it was found

    bool isEmptyWord() const; ///< the value that was found says that there is none
    bool fellBack(const AttributeQuery &query) const; ///< found in Normal, though another status was asked for
};

/// Follows the search for an attribute of a control with the overrides of \p log.
Resolution resolve(const AttributeQuery &query, const OverrideLog &log = OverrideLog());
