#include "BaseStyle.h"
#include "ProbeTheme.h"
#include "SpyStyle.h"

#include <QApplication>
#include <QPainter>
#include <QtTest>

// A style that wraps this one can override every piece: all of them are asked through the proxy.

using namespace BRELK;
using StyleOptions::Element;
using StyleOptions::Sample;

namespace {

/// The style, noting what reaches it in another way than through the spy around it.
class WatchedStyle : public NotingStyle<BaseStyle>
{
public:
    const SpyStyle* spy = nullptr;
    mutable QByteArrayList bypassed;

protected:
    /// The spy notes a call just before it passes it on.
    bool note(const QByteArray& element) const override
    {
        const bool isPassedOn = spy->calls.size() != m_passedOn && spy->calls.last() == element;
        m_passedOn = spy->calls.size();
        if (!isPassedOn)
            bypassed.append(element);
        return true;
    }

private:
    mutable int m_passedOn = 0;
};

/// Its own padding is no metric that others could know.
const QByteArrayList NotForOthers{"custom", "SE_CheckBoxIndicator", "CC_ScrollBar 80"};

} // namespace

class tst_Proxy : public QObject
{
    Q_OBJECT

private:
    WatchedStyle* m_style = nullptr;
    SpyStyle* m_spy = nullptr;

private Q_SLOTS:

    void initTestCase()
    {
        ProbeTheme::publish();
        m_style = new WatchedStyle;
        m_style->setBaseStyle(newSpyingBase());
        m_spy = new SpyStyle(m_style);
        m_style->spy = m_spy;
        QApplication::setStyle(m_spy);
    }

    void nothingBypassesTheProxy()
    {
        QImage image(200, 40, QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&image);
        for (const Element& element : StyleOptions::elements())
            for (const char* settings : {"", "arrowType=UpArrow option.text=Two_lines"}) {
                const Sample sample =
                    StyleOptions::sampleNamed(element.name, StyleOptions::settingsOf(settings));
                sample.option->state |= *settings ? QStyle::State(~0) : QStyle::State();
                m_style->bypassed.clear();
                element.use(*m_spy, sample, &painter);
                for (const QByteArray& piece : qAsConst(m_style->bypassed))
                    QVERIFY2(NotForOthers.contains(piece),
                             QByteArray(element.name + " asks for " + piece).constData());
            }
    }
};

QTEST_MAIN(tst_Proxy)
#include "tst_Proxy.moc"
