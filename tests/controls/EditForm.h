#pragma once

#include "controls/Pixels.h"
#include "resources/Translation.h"
#include "support/window/TestApp.h"

#include <QLineEdit>
#include <QTest>

#include <memory>

namespace skeldon::test {

/// A program in some language and a form in it with one box of class `Edit`, which has the focus,
/// and a plain one.
template <typename Edit>
class CEditForm
{
protected:
    void StartIn(const QString& language)
    {
        Close();
        m_app = std::make_unique<CTestApp>(language);
        QVERIFY(InstallTranslation(m_app->m_app->IsJapanese()));
        m_form = std::make_unique<QWidget>();
        m_form->resize(300, 100);
        m_edit = new Edit(m_form.get());
        m_other = new QLineEdit(m_form.get());
        m_other->move(0, 50);
        QVERIFY(ShowActive(*m_form));
        m_edit->setFocus();
    }
    void Close()
    {
        m_form.reset();
        m_app.reset();
        InstallTranslation(false);
    }
    [[nodiscard]] const QString& Status() const { return m_app->m_frame.m_status; }
    [[nodiscard]] int Beeps() const { return m_app->m_prompts->m_beeps; }

    std::unique_ptr<CTestApp> m_app;
    std::unique_ptr<QWidget> m_form;
    Edit* m_edit = nullptr;
    QLineEdit* m_other = nullptr;
};

/// What a box says of a text that is not valid, by language and name of the value.
inline void AddMessageColumns()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("message");
}

} // namespace skeldon::test
