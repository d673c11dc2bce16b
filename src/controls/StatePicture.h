#pragma once

#include "controls/AccessibleFace.h"
#include "controls/Surface.h"
#include "resources/StringTable.h"

#include <QWidget>

namespace skeldon {

/// A picture with two states that stand side by side in its source: without a recorder and with
/// one.
class CStatePicture : public QWidget, public CAccessibleFace
{
    Q_OBJECT

public:
    CStatePicture(PictureId picture, StringId name, QWidget* parent);

    void SetConnected(bool isConnected);
    [[nodiscard]] bool IsConnected() const { return m_isConnected; }

    [[nodiscard]] QAccessible::Role AccessibleRole() const override;
    [[nodiscard]] QString AccessibleValue() const override;
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    PictureId m_picture;
    bool m_isConnected = false;
};

} // namespace skeldon
