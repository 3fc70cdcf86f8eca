// The box that shows the user's guide.
#pragma once

#include <QHash>
#include <QImage>
#include <QTextBrowser>

#include <functional>

/// Shows Markdown with its pictures, which are made smaller where they are wider than the box. What stands at
/// the top stays there when the box gets another width. Positions are those of the shown text and count from
/// 0.
class KılavuzKutusu : public QTextBrowser
{
public:
    explicit KılavuzKutusu(QWidget* üst = nullptr);

    /// A link was followed that leads to a place of the text; others open with the desktop's own program.
    std::function<void(const QString& çapa)> Bağlantı;
    /// Another place of the text has come to the top.
    std::function<void()> Kaydı;

    /// @param klasör what the pictures' paths begin at
    void Yükle(const QString& markdown, const QString& klasör);

    /// Where a heading stands; the sıra-th of all, counted from 0.
    int BaşlıkYeri(int sıra) const { return başlıklar_.value(sıra); }
    /// The last heading at or above the box's top; -1 where there is none.
    int ÜsttekiBaşlık() const;
    int ÜsttekiYer() const;

    /// Brings a place to the box's top, as far as there is text below it, and selects some letters there.
    void Git(int yer, int uzunluk = 0);

    /// Where the words stand, without regard to case; all places in their order.
    QList<int> Bul(const QString& sözler) const;
    /// The first such place of a section; its heading where there is none.
    int BölümdeBul(int başlık, const QString& sözler) const;

protected:
    QVariant loadResource(int tür, const QUrl& ad) override;
    void resizeEvent(QResizeEvent* olay) override;
    void changeEvent(QEvent* olay) override;

private:
    void başlıklarıBul();
    void biçimle();
    void resimleriSığdır();
    const QImage& resmi(const QString& ad);
    void kaydır(int yer, int üstPay);
    void bağlantıyıAç(const QUrl& adres);

    QString klasör_, katlanmış_; // the shown text, folded
    QList<int> başlıklar_;
    QHash<QString, QImage> resimler_;
    bool kayıyor_ = false;
};
