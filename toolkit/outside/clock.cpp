#include "toolkit/outside/clock.h"

#include <QDateTime>
#include <QLocale>

namespace trabeon {

std::string LongDate() {
    return QLocale::system().toString(QDate::currentDate(), QLocale::LongFormat).toStdString();
}

std::string TimeOfDay() {
    return QTime::currentTime().toString("h:m:s").toStdString();
}

}  // namespace trabeon
