// SPDX-License-Identifier: GPL-3.0-or-later
#include "Accessibility.h"

#include "widgets/Gauge.h"

#include <QAccessibleWidget>

namespace {

// The gauge as a progress bar whose value a screen reader can read.
class GaugeAccessible final : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit GaugeAccessible(Gauge *gauge) : QAccessibleWidget(gauge, QAccessible::ProgressBar) {}

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text t) const override
    {
        if (t == QAccessible::Value)
            return Gauge::tr("%1 percent").arg(gauge()->percent());
        return QAccessibleWidget::text(t);
    }
    QVariant currentValue() const override { return gauge()->percent(); }
    void setCurrentValue(const QVariant &) override {} // a gauge shows; it is not set by hand
    QVariant maximumValue() const override { return 100; }
    QVariant minimumValue() const override { return 0; }
    QVariant minimumStepSize() const override { return 1; }

private:
    Gauge *gauge() const { return static_cast<Gauge *>(widget()); }
};

QAccessibleInterface *factory(const QString &className, QObject *object)
{
    if (!object || !object->isWidgetType())
        return nullptr;
    auto *widget = static_cast<QWidget *>(object);
    if (className == QLatin1String("Gauge"))
        return new GaugeAccessible(static_cast<Gauge *>(widget));
    // Reached only by windows with no more specific interface (dialogs, message boxes and the
    // like have theirs): a plain window would otherwise read as an unnamed pane.
    if (className == QLatin1String("QWidget") && widget->isWindow())
        return new QAccessibleWidget(widget, QAccessible::Window);
    return nullptr;
}

} // namespace

void InstallAccessibility()
{
    static const bool installed = [] {
        QAccessible::installFactory(factory);
        return true;
    }();
    Q_UNUSED(installed);
}

QString SpokenCaption(const QString &caption)
{
    QString spoken;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption[i] == u'&') {
            if (i + 1 < caption.size() && caption[i + 1] == u'&')
                spoken += caption[++i];
            continue;
        }
        spoken += caption[i];
    }
    return spoken.trimmed();
}
