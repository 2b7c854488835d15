#pragma once

#include "GalleryPage.h"

#include "engine/Resolution.h"
#include "parts/LiveControl.h"

#include <array>

class BoxSpecimen;
class CustomCheckBox;
class CustomLineEdit;
class CustomPushButton;
class QButtonGroup;

/// Asks the style engine for one attribute, explains where the value comes from, and shows a live control of the
/// class whose overrides can be set and reset.
class EnginePage : public GalleryPage
{
    Q_OBJECT

public:
    explicit EnginePage(QWidget *parent = nullptr);
    ~EnginePage() override;

    void retranslate() override;

    /// Fills the fields.
    void setQuery(const AttributeQuery &query);
    AttributeQuery query() const; ///< what the fields hold
    QString value() const; ///< what the live control answers
    Resolution resolution() const; ///< the way to that answer
    CustomObject *control() const { return m_live.object; }

    /// Overrides the attribute asked for in the status asked for; nothing without an attribute.
    void setOverride(const QString &value);
    /// The live control takes the document's values anew; its overrides stay.
    void takeDocument();
    /// A new control without overrides.
    void renewControl();

protected:
    void customEvent(QEvent *event) override;

private:
    static constexpr int MaxSteps = 6; // three places in two statuses

    struct StepLine
    {
        TextLabel *key;
        TextLabel *place;
        TextLabel *value;
    };

    void addQuestion();
    void addExamples(Card *card);
    void addAnswer();
    void addControl();
    QWidget *createStatusChooser();
    QWidget *createPreview();
    QLayout *createOverrideRow();
    QLayout *createFlags();
    void applyQuery();
    void controlChanged();
    void showAnswer();
    void showValue();
    void showSteps(const AttributeQuery &query, const Resolution &resolution);
    QString origin(const AttributeQuery &query, const Resolution &resolution) const;
    QString placeName(Place place, const AttributeQuery &query) const;

    CustomLineEdit *m_pClass = nullptr;
    CustomLineEdit *m_pParentClass = nullptr;
    CustomLineEdit *m_pSelector = nullptr;
    CustomLineEdit *m_pSubSelectors = nullptr;
    CustomLineEdit *m_pAttribute = nullptr;
    CustomLineEdit *m_pOverride = nullptr;
    QButtonGroup *m_pStatuses;
    CustomPushButton *m_pSetOverride = nullptr;
    TextLabel *m_pValue = nullptr;
    TextLabel *m_pColor = nullptr;
    TextLabel *m_pOrigin = nullptr;
    BoxSpecimen *m_pSwatch = nullptr;
    QWidget *m_pPreview = nullptr;
    QList<CustomCheckBox *> m_lstFlags;
    std::array<StepLine, MaxSteps> m_steps{};

    AttributeQuery m_applied; ///< what the live control was told
    LiveControl m_live;
    OverrideLog m_log;
};
