#include "app/Dil.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <cstring>

namespace {

/// The toolkit asks for what files and drives are called ("Drive", "Folder", ...) under a name that its
/// translation doesn't know yet: there they stand among the file dialog's words.
class AraçÇevirisi : public QTranslator
{
public:
    using QTranslator::QTranslator;

    QString translate(const char* bağlam, const char* söz, const char* açıklama, int sayı) const override
    {
        QString çeviri = QTranslator::translate(bağlam, söz, açıklama, sayı);
        if (çeviri.isEmpty() && std::strcmp(bağlam, "QAbstractFileIconProvider") == 0)
            return QTranslator::translate("QFileDialog", söz, açıklama, sayı);
        return çeviri;
    }
};

} // namespace

void DiliKur()
{
    QLocale::setDefault(QLocale(QLocale::Turkish, QLocale::Turkey));
    auto* çeviri = new AraçÇevirisi(QCoreApplication::instance());
    if (çeviri->load(QStringLiteral("qtbase_tr"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(çeviri);
    else
        qWarning("belgenar: qtbase_tr is missing; standard buttons will not be Turkish");
}
