#include "controls/WebEtiketi.h"

#include "app/HataPolitikaları.h"
#include "system/EkranÖlçüsü.h"
#include "system/OrtakApilerModülü.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr Renk OlağanAktifRenk = 0xFF0000;
constexpr Renk OlağanPasifRenk = 0x404080;

// The stored state's keys.
const QString CaptionAnahtarı = QStringLiteral("Caption");
const QString FontUnderlineAnahtarı = QStringLiteral("FontUnderline");
const QString ForeColorAnahtarı = QStringLiteral("ForeColor");
const QString FontAnahtarı = QStringLiteral("Font");
const QString AktifRenkAnahtarı = QStringLiteral("AktifRenk");
const QString PasifRenkAnahtarı = QStringLiteral("PasifRenk");
const QString RenkDeğiştirAnahtarı = QStringLiteral("RenkDeğiştir");
const QString UrlAnahtarı = QStringLiteral("Url");

QString olağanYazı()
{
    return QStringLiteral("...");
}

template<class Tür> Tür oku(const QVariantMap& durum, const QString& anahtar, const Tür& olağan)
{
    QVariant değer = durum.value(anahtar);
    return değer.isValid() && değer.convert(QMetaType::fromType<Tür>()) ? değer.value<Tür>() : olağan;
}

template<class Tür> void yaz(QVariantMap& durum, const QString& anahtar, const Tür& değer, const Tür& olağan)
{
    if (değer != olağan)
        durum.insert(anahtar, QVariant::fromValue(değer));
}

/// A link that can be pressed; the inner label, which would say the same again, is left out.
class Erişim : public QAccessibleWidget
{
public:
    explicit Erişim(WebEtiketi& etiket) : QAccessibleWidget(&etiket, QAccessible::Link), etiket_(etiket) {}

    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QStringList actionNames() const override
    {
        return QStringList(pressAction()) + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& eylem) override
    {
        if (eylem == pressAction())
            etiket_.Aç();
        else
            QAccessibleWidget::doAction(eylem);
    }

private:
    WebEtiketi& etiket_;
};

QAccessibleInterface* erişimÜret(const QString&, QObject* nesne)
{
    auto* etiket = dynamic_cast<WebEtiketi*>(nesne); // its class name says only QWidget
    return etiket ? new Erişim(*etiket) : nullptr;
}

qint16 düğmeSayısı(Qt::MouseButtons düğmeler)
{
    return static_cast<qint16>((düğmeler & Qt::LeftButton ? 1 : 0) | (düğmeler & Qt::RightButton ? 2 : 0) |
                               (düğmeler & Qt::MiddleButton ? 4 : 0));
}

qint16 üstTuşSayısı(Qt::KeyboardModifiers tuşlar)
{
    return static_cast<qint16>((tuşlar & Qt::ShiftModifier ? 1 : 0) | (tuşlar & Qt::ControlModifier ? 2 : 0) |
                               (tuşlar & Qt::AltModifier ? 4 : 0));
}

} // namespace

WebEtiketi::WebEtiketi(QWidget* üst)
    : QWidget(üst), Etiket(this), aktifRenk_(OlağanAktifRenk), pasifRenk_(OlağanPasifRenk),
      renkDeğiştir_(false), url_(ÜreticiSitesi.toString())
{
    static const bool kuruldu = (QAccessible::installFactory(&erişimÜret), true);
    Q_UNUSED(kuruldu)

    setFocusPolicy(Qt::TabFocus); // a click opens the address and leaves the focus where it is
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setMouseTracking(true); // movements over the margin go on to the holding window
    Etiket.setObjectName(QStringLiteral("Etiket"));
    Etiket.setTextFormat(Qt::PlainText);
    Etiket.setCursor(Qt::PointingHandCursor);
    Etiket.setMouseTracking(true);
    Etiket.installEventFilter(this);
    yazıyıKoy(olağanYazı());
    renklendir(yazıRengi_);
}

void WebEtiketi::Caption(const QString& yazı)
{
    değişenler_.insert(CaptionAnahtarı);
    yazıyıKoy(yazı);
}

void WebEtiketi::FontUnderline(bool altÇizgili)
{
    değişenler_.insert(FontUnderlineAnahtarı);
    altÇiz(altÇizgili);
}

void WebEtiketi::ForeColor(Renk renk)
{
    değişenler_.insert(ForeColorAnahtarı);
    renklendir(renk);
}

void WebEtiketi::Font(const QFont& yazıTipi)
{
    değişenler_.insert(FontAnahtarı);
    yazıTipiniKoy(yazıTipi);
}

void WebEtiketi::PasifRenk(Renk renk)
{
    değişenler_.insert(PasifRenkAnahtarı);
    pasifRenk_ = renk;
}

Renk WebEtiketi::AktifRenk()
{
    renklendir(aktifRenk_);
    return aktifRenk_;
}

void WebEtiketi::AktifRenk(Renk renk)
{
    değişenler_.insert(AktifRenkAnahtarı);
    aktifRenk_ = renk;
    renklendir(renk);
}

void WebEtiketi::Url(const QString& adres)
{
    değişenler_.insert(UrlAnahtarı);
    url_ = adres;
}

void WebEtiketi::RenkDeğiştir(bool değiştir)
{
    değişenler_.insert(RenkDeğiştirAnahtarı);
    renkDeğiştir_ = değiştir;
}

QVariantMap WebEtiketi::DurumuYaz()
{
    QVariantMap durum;
    yaz(durum, CaptionAnahtarı, Caption(), olağanYazı());
    yaz(durum, FontUnderlineAnahtarı, FontUnderline(), false);
    yaz(durum, ForeColorAnahtarı, yazıRengi_, DüğmeYazısıRengi);
    yaz(durum, FontAnahtarı, Font(), window()->font());
    yaz(durum, AktifRenkAnahtarı, aktifRenk_, OlağanAktifRenk);
    yaz(durum, PasifRenkAnahtarı, pasifRenk_, OlağanPasifRenk);
    yaz(durum, RenkDeğiştirAnahtarı, renkDeğiştir_, false);
    yaz(durum, UrlAnahtarı, url_, ÜreticiSitesi.toString());
    değişenler_.clear();
    return {{Kimlik.toString(), durum}};
}

bool WebEtiketi::DurumuOku(const QVariantMap& durum)
{
    if (!durum.contains(Kimlik.toString()))
        return false;
    const QVariantMap özellikler = durum.value(Kimlik.toString()).toMap();
    yazıyıKoy(oku(özellikler, CaptionAnahtarı, olağanYazı()));
    altÇiz(oku(özellikler, FontUnderlineAnahtarı, false));
    renklendir(oku(özellikler, ForeColorAnahtarı, DüğmeYazısıRengi));
    yazıTipiniKoy(oku(özellikler, FontAnahtarı, window()->font())); // its own underline counts
    aktifRenk_ = oku(özellikler, AktifRenkAnahtarı, OlağanAktifRenk);
    pasifRenk_ = oku(özellikler, PasifRenkAnahtarı, OlağanPasifRenk);
    renkDeğiştir_ = oku(özellikler, RenkDeğiştirAnahtarı, false);
    url_ = oku(özellikler, UrlAnahtarı, ÜreticiSitesi.toString());
    değişenler_.clear();
    return true;
}

void WebEtiketi::Aç() const
{
    AdresAç(url_);
}

void WebEtiketi::yazıyıKoy(const QString& yazı)
{
    Etiket.setText(yazı);
    setAccessibleName(yazı);
    boyuTazele();
}

void WebEtiketi::altÇiz(bool altÇizgili)
{
    QFont yazıTipi = Etiket.font();
    yazıTipi.setUnderline(altÇizgili);
    yazıTipiniKoy(yazıTipi);
}

void WebEtiketi::yazıTipiniKoy(const QFont& yazıTipi)
{
    Etiket.setFont(yazıTipi);
    boyuTazele();
}

void WebEtiketi::renklendir(Renk renk)
{
    yazıRengi_ = renk;
    QPalette palet; // the rest stays the window's
    palet.setColor(QPalette::WindowText,
                   OkunurTon(EkranRengi(renk, palette()), palette().color(QPalette::Window)));
    Etiket.setPalette(palet);
}

// A layout resizes the control then; where there is none, the holding window does.
void WebEtiketi::boyuTazele()
{
    Etiket.adjustSize();
    updateGeometry();
}

QSize WebEtiketi::sizeHint() const
{
    const int kenarlar = 2 * Piksel(KenarBoşluğu);
    return Etiket.sizeHint() + QSize(kenarlar, kenarlar);
}

void WebEtiketi::resizeEvent(QResizeEvent* olay)
{
    QWidget::resizeEvent(olay);
    const int kenar = Piksel(KenarBoşluğu);
    Etiket.move(kenar, kenar);
    resize(Etiket.size() + 2 * QSize(kenar, kenar));
}

void WebEtiketi::changeEvent(QEvent* olay)
{
    QWidget::changeEvent(olay);
    if (olay->type() == QEvent::FontChange || olay->type() == QEvent::StyleChange)
        boyuTazele();
    if (olay->type() == QEvent::PaletteChange)
        renklendir(yazıRengi_);
}

// The label's mouse events end here: the holding window takes its own for the pointer being elsewhere.
bool WebEtiketi::eventFilter(QObject* nesne, QEvent* olay)
{
    const auto fare = [olay]() -> const QMouseEvent& { return *static_cast<QMouseEvent*>(olay); };
    switch (olay->type()) {
    case QEvent::MouseMove:
        İlkHatadaBit([&] {
            const QPoint yer = fare().position().toPoint();
            if (MouseMove)
                MouseMove(düğmeSayısı(fare().buttons()), üstTuşSayısı(fare().modifiers()),
                          static_cast<float>(Twip(yer.x())), static_cast<float>(Twip(yer.y())));
        });
        return true;
    case QEvent::MouseButtonPress:
        basıldı_ = fare().button() == Qt::LeftButton;
        return true;
    case QEvent::MouseButtonRelease:
        if (std::exchange(basıldı_, false) && fare().button() == Qt::LeftButton &&
            Etiket.rect().contains(fare().position().toPoint()))
            Aç();
        return true;
    default:
        return QWidget::eventFilter(nesne, olay);
    }
}

void WebEtiketi::keyPressEvent(QKeyEvent* olay)
{
    switch (olay->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (!olay->isAutoRepeat())
            Aç();
        break;
    default:
        QWidget::keyPressEvent(olay);
    }
}

void WebEtiketi::paintEvent(QPaintEvent*)
{
    if (!hasFocus())
        return;
    QPainter ressam(this);
    ressam.setPen(QPen(Etiket.palette().color(QPalette::WindowText), 1, Qt::DotLine));
    ressam.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5)); // whole also at fractional scales
}
