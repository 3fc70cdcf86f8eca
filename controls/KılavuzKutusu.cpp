#include "controls/KılavuzKutusu.h"

#include "app/Görünüm.h"
#include "system/OrtakApilerModülü.h"
#include "text/TürkçeHarfler.h"

#include <QAbstractTextDocumentLayout>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextTable>

#include <algorithm>

namespace {

constexpr int HücreBoşluğu = 75; // twips
constexpr int KenarBoşluğu = 180;
constexpr int ParagrafArası = 120;
constexpr int BaşlıkÜstü = 240;
constexpr int ÜstPay = 4;         // pixels between the box's top and what was brought there
constexpr int SatırAralığı = 115; // percent

} // namespace

KılavuzKutusu::KılavuzKutusu(QWidget* üst) : QTextBrowser(üst)
{
    setOpenLinks(false);
    setUndoRedoEnabled(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QTextBrowser::anchorClicked, this, &KılavuzKutusu::bağlantıyıAç);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        if (Kaydı && !kayıyor_)
            Kaydı();
    });
}

void KılavuzKutusu::Yükle(const QString& markdown, const QString& klasör)
{
    klasör_ = klasör;
    document()->setMarkdown(markdown, QTextDocument::MarkdownDialectGitHub);
    document()->setDocumentMargin(FormPikseli(KenarBoşluğu));
    katlanmış_ = Katla(document()->toRawText());
    başlıklarıBul();
    biçimle();
    resimleriSığdır();
    moveCursor(QTextCursor::Start); // the box shows its cursor when it is shown
}

void KılavuzKutusu::başlıklarıBul()
{
    başlıklar_.clear();
    for (QTextBlock blok = document()->begin(); blok.isValid(); blok = blok.next()) {
        if (blok.blockFormat().headingLevel() > 0)
            başlıklar_.append(blok.position());
    }
}

// The toolkit gives Markdown's tables no lines and lets long commands make the page wider than the box.
void KılavuzKutusu::biçimle()
{
    QTextCursor bütün(document()); // one change, after which all is laid out anew
    bütün.beginEditBlock();
    for (QTextBlock blok = document()->begin(); blok.isValid(); blok = blok.next()) {
        QTextCursor imleç(blok);
        QTextBlockFormat biçim = blok.blockFormat();
        const bool hücrede = imleç.currentTable();
        if (!blok.text().contains(QChar::ObjectReplacementCharacter)) // a picture would get a gap
            biçim.setLineHeight(SatırAralığı, QTextBlockFormat::ProportionalHeight);
        biçim.setBottomMargin(hücrede ? 0 : FormPikseli(ParagrafArası) / (blok.textList() ? 2 : 1));
        biçim.setTopMargin(biçim.headingLevel() > 1 ? FormPikseli(BaşlıkÜstü) : 0);
        if (biçim.hasProperty(QTextFormat::BlockCodeLanguage)) {
            biçim.setNonBreakableLines(false);
            biçim.setBackground(palette().alternateBase());
        }
        imleç.setBlockFormat(biçim);
    }
    for (QTextFrame* çerçeve : document()->rootFrame()->childFrames()) {
        auto* tablo = qobject_cast<QTextTable*>(çerçeve);
        if (!tablo)
            continue;
        QTextTableFormat biçim = tablo->format();
        biçim.setBorder(1);
        biçim.setBorderBrush(palette().mid());
        biçim.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        biçim.setBorderCollapse(true);
        biçim.setCellSpacing(0);
        biçim.setCellPadding(FormPikseli(HücreBoşluğu));
        biçim.setBottomMargin(FormPikseli(ParagrafArası));
        tablo->setFormat(biçim);
        for (int sütun = 0; sütun < tablo->columns(); ++sütun) {
            QTextTableCell hücre = tablo->cellAt(0, sütun);
            QTextCharFormat başlık = hücre.format();
            başlık.setBackground(palette().alternateBase());
            hücre.setFormat(başlık);
        }
    }
    bütün.endEditBlock();
}

// What is drawn has the screen's own fineness, so that letters in pictures stay readable.
void KılavuzKutusu::resimleriSığdır()
{
    QTextCursor bütün(document());
    bütün.beginEditBlock();
    const double sığan = viewport()->width() - 2 * document()->documentMargin();
    for (QTextBlock blok = document()->begin(); blok.isValid(); blok = blok.next()) {
        for (auto parça = blok.begin(); !parça.atEnd(); ++parça) {
            const QTextFragment yazı = parça.fragment();
            if (!yazı.charFormat().isImageFormat())
                continue;
            QTextImageFormat biçim = yazı.charFormat().toImageFormat();
            const QImage& resim = resmi(biçim.name());
            const double oran = std::min(1.0, sığan / std::max(resim.width(), 1));
            if (resim.isNull() || oran <= 0)
                continue;
            const QSize boy = (QSizeF(resim.size()) * oran).toSize();
            QImage çizilen =
                resim.scaled(boy * devicePixelRatioF(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
            çizilen.setDevicePixelRatio(devicePixelRatioF());
            document()->addResource(QTextDocument::ImageResource, QUrl(biçim.name()), çizilen);
            biçim.setWidth(boy.width());
            biçim.setHeight(boy.height());
            QTextCursor imleç(document());
            imleç.setPosition(yazı.position());
            imleç.setPosition(yazı.position() + yazı.length(), QTextCursor::KeepAnchor);
            imleç.setCharFormat(biçim);
            break; // a picture has its line for itself, and the walk over this block is over with the change
        }
    }
    bütün.endEditBlock();
    // The toolkit's layout would leave out lines below a picture whose height changed.
    document()->markContentsDirty(0, document()->characterCount());
    document()->documentLayout()->documentSize(); // lays it out to its end
}

QVariant KılavuzKutusu::loadResource(int tür, const QUrl& ad)
{
    return tür == QTextDocument::ImageResource && ad.isRelative() ? resmi(ad.toString()) : QVariant();
}

const QImage& KılavuzKutusu::resmi(const QString& ad)
{
    QImage& resim = resimler_[ad];
    if (resim.isNull())
        resim.load(klasör_ + ad);
    return resim;
}

int KılavuzKutusu::ÜsttekiYer() const
{
    return cursorForPosition(QPoint(viewport()->width() / 2, ÜstPay + 1)).position();
}

int KılavuzKutusu::ÜsttekiBaşlık() const
{
    const auto sonraki = std::upper_bound(başlıklar_.begin(), başlıklar_.end(), ÜsttekiYer());
    return static_cast<int>(sonraki - başlıklar_.begin()) - 1;
}

void KılavuzKutusu::Git(int yer, int uzunluk)
{
    QTextCursor imleç(document());
    imleç.setPosition(yer);
    imleç.setPosition(yer + uzunluk, QTextCursor::KeepAnchor);
    {
        const QScopedValueRollback kayıyor(kayıyor_, true); // the toolkit scrolls to the cursor first
        setTextCursor(imleç);
        kaydır(yer, uzunluk > 0 ? viewport()->height() / 4 : ÜstPay);
    }
    if (Kaydı)
        Kaydı();
}

void KılavuzKutusu::kaydır(int yer, int üstPay)
{
    QTextCursor imleç(document());
    imleç.setPosition(yer);
    verticalScrollBar()->setValue(cursorRect(imleç).top() + verticalScrollBar()->value() - üstPay);
}

QList<int> KılavuzKutusu::Bul(const QString& sözler) const
{
    QList<int> yerler;
    const QString aranan = Katla(sözler);
    if (aranan.isEmpty())
        return yerler;
    for (qsizetype yer = katlanmış_.indexOf(aranan); yer >= 0;
         yer = katlanmış_.indexOf(aranan, yer + aranan.size()))
        yerler.append(static_cast<int>(yer));
    return yerler;
}

int KılavuzKutusu::BölümdeBul(int başlık, const QString& sözler) const
{
    const int baş = BaşlıkYeri(başlık);
    const int son = başlıklar_.value(başlık + 1, static_cast<int>(katlanmış_.size()));
    const auto içinde = [this](qsizetype yer) {
        return yer >= 0 && yer < katlanmış_.size() && katlanmış_[yer].isLetterOrNumber();
    };
    const auto uzunluk = static_cast<int>(sözler.size());
    for (const int yer : Bul(sözler)) { // a number may stand within another one
        if (yer >= baş && yer < son && !içinde(yer - 1) && !içinde(yer + uzunluk))
            return yer;
    }
    return baş;
}

void KılavuzKutusu::resizeEvent(QResizeEvent* olay)
{
    const int yer = ÜsttekiYer();
    const QScopedValueRollback kayıyor(kayıyor_, true); // the layout scrolls to and fro
    QTextBrowser::resizeEvent(olay);
    if (olay->oldSize().width() == olay->size().width())
        return;
    resimleriSığdır();
    kaydır(yer, ÜstPay);
}

void KılavuzKutusu::changeEvent(QEvent* olay)
{
    QTextBrowser::changeEvent(olay);
    if (olay->type() == QEvent::PaletteChange)
        biçimle();
}

void KılavuzKutusu::bağlantıyıAç(const QUrl& adres)
{
    if (!adres.isRelative())
        AdresAç(adres.toString());
    else if (Bağlantı)
        Bağlantı(adres.fragment(QUrl::FullyDecoded));
}
