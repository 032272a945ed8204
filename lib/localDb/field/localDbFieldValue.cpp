#include "localDb/field/localDbFieldValue.h"

QString localDbFieldValue::sqlValue() const {
    QString doubled = value;
    doubled.replace(QLatin1Char('\''), QLatin1String("''"));
    return type == u"CHAR" ? QLatin1Char('\'') + doubled + QLatin1Char('\'') : doubled;
}
