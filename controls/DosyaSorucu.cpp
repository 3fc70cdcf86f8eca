#include "controls/DosyaSorucu.h"

#include <QDateTime>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QIdentityProxyModel>
#include <QLocale>

namespace {

constexpr int BoyutSütunu = 1;
constexpr int TarihSütunu = 3;

/// The toolkit writes sizes and dates in the environment's language, whatever the program's is.
class TürkçeDosyaModeli : public QIdentityProxyModel
{
public:
    using QIdentityProxyModel::QIdentityProxyModel;

    QVariant data(const QModelIndex& yer, int rol) const override
    {
        const auto* dosyalar = qobject_cast<const QFileSystemModel*>(sourceModel());
        const QModelIndex dosya = mapToSource(yer);
        if (rol == Qt::DisplayRole && dosyalar && dosya.isValid()) {
            if (yer.column() == BoyutSütunu && !dosyalar->isDir(dosya))
                return QLocale().formattedDataSize(dosyalar->size(dosya));
            if (yer.column() == TarihSütunu)
                return QLocale().toString(dosyalar->lastModified(dosya), QLocale::ShortFormat);
        }
        return QIdentityProxyModel::data(yer, rol);
    }
};

} // namespace

QString DosyaSor(QWidget& sahip, const QString& başlık, const QString& klasör, const QStringList& süzgeçler)
{
    QFileDialog sorucu(&sahip, başlık, klasör);
    sorucu.setFileMode(QFileDialog::ExistingFile);
    sorucu.setNameFilters(süzgeçler);
    sorucu.setProxyModel(new TürkçeDosyaModeli(&sorucu));
    return sorucu.exec() == QDialog::Accepted ? sorucu.selectedFiles().value(0) : QString();
}
