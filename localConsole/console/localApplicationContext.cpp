#include "console/localApplicationContext.h"

#include <QCoreApplication>
#include <QVariant>

#include "localInterpretatorUTF8/context/localContextUTF8.h"

namespace {

class ContextOwner : public QObject {
public:
    using QObject::QObject;
    localContextUTF8 context;
};

}  // namespace

localContextUTF8* localApplicationContext() {
    constexpr const char* property = "localGlobalContext";
    if (const QVariant address = qApp->property(property); address.isValid()) {
        return reinterpret_cast<localContextUTF8*>(static_cast<quintptr>(address.toULongLong()));
    }
    localContextUTF8* context = &(new ContextOwner(qApp))->context;
    qApp->setProperty(property, static_cast<qulonglong>(reinterpret_cast<quintptr>(context)));
    return context;
}
