#include "document/RtfTabloları.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>

namespace {

using E = RtfEylemi;

constexpr std::size_t EnUzunSözcük = 32; // the format's own limit

// Unknown destinations that may be ignored are marked so in the document; here stand those that are not.
constexpr std::string_view AtlananHedefler[] = {"atnauthor",
                                                "atndate",
                                                "atnicn",
                                                "atnid",
                                                "atnparent",
                                                "atnref",
                                                "atntime",
                                                "author",
                                                "bkmkend",
                                                "bkmkstart",
                                                "buptim",
                                                "colorschememapping",
                                                "comment",
                                                "company",
                                                "creatim",
                                                "datafield",
                                                "datastore",
                                                "doccomm",
                                                "docvar",
                                                "factoidname",
                                                "falt",
                                                "filetbl",
                                                "fldtype",
                                                "fname",
                                                "fontemb",
                                                "fontfile",
                                                "formfield",
                                                "generator",
                                                "hlinkbase",
                                                "info",
                                                "keycode",
                                                "keywords",
                                                "latentstyles",
                                                "listname",
                                                "listoverridetable",
                                                "listtable",
                                                "manager",
                                                "nonshppict",
                                                "objalias",
                                                "objclass",
                                                "objdata",
                                                "objname",
                                                "objsect",
                                                "objtime",
                                                "operator",
                                                "panose",
                                                "pgptbl",
                                                "pict",

                                                "pnseclvl",

                                                "printim",
                                                "private",
                                                "revtbl",
                                                "revtim",
                                                "rsidtbl",
                                                "rxe",
                                                "staticval",
                                                "stylesheet",
                                                "subject",
                                                "tc",
                                                "tcn",
                                                "template",
                                                "themedata",
                                                "title",
                                                "txe",
                                                "userprops",
                                                "wgrffmtfilter",
                                                "windowcaption",
                                                "xe",
                                                "xmlattrname",
                                                "xmlattrvalue",
                                                "xmlnstbl"};

// Those of them that may hold paragraphs.
constexpr std::string_view AtlananMetinler[] = {
    "aftncn", "aftnsep", "aftnsepc", "annotation", "footer",  "footerf", "footerl",      "footerr", "ftncn",
    "ftnsep", "ftnsepc", "header",   "headerf",    "headerl", "headerr", "nonesttables", "shprslt"};

constexpr std::string_view AltÇizgiler[] = {
    "ul",   "uld",   "uldash",   "uldashd",   "uldashdd",   "uldb",      "ulhair",     "ulhwave", "ulldash",
    "ulth", "ulthd", "ulthdash", "ulthdashd", "ulthdashdd", "ulthldash", "ululdbwave", "ulw",     "ulwave"};

struct Satır
{
    std::string_view ad;
    RtfTanımı tanım;
};

constexpr int tür(RtfMaddeTürü tür)
{
    return static_cast<int>(tür);
}

constexpr Satır Diğerleri[] = {
    {"tab", {E::Harf, u'\t'}},
    {"emdash", {E::Harf, 0x2014}},
    {"endash", {E::Harf, 0x2013}},
    {"bullet", {E::Harf, 0x2022}},
    {"lquote", {E::Harf, 0x2018}},
    {"rquote", {E::Harf, 0x2019}},
    {"ldblquote", {E::Harf, 0x201C}},
    {"rdblquote", {E::Harf, 0x201D}},
    {"enspace", {E::Harf, 0x2002}},
    {"emspace", {E::Harf, 0x2003}},
    {"qmspace", {E::Harf, 0x2005}},
    {"zwbo", {E::Harf, 0x200B}},
    {"zwnbo", {E::Harf, 0x2060}},
    {"zwnj", {E::Harf, 0x200C}},
    {"zwj", {E::Harf, 0x200D}},
    {"ltrmark", {E::Harf, 0x200E}},
    {"rtlmark", {E::Harf, 0x200F}},
    {"par", {E::Paragraf}},
    {"line", {E::YeniSatır}},
    {"lbr", {E::YeniSatır}},
    {"page", {E::YeniSatır}},
    {"sect", {E::Paragraf}},
    {"column", {E::YeniSatır}},
    {"cell", {E::Hücre}},
    {"nestcell", {E::İçHücre}},
    {"trowd", {E::SatırTanımı}},
    {"cellx", {E::HücreTanımı}},
    {"clmrg", {E::BirleşikHücre}},
    {"row", {E::Satır}},
    {"nestrow", {E::İçSatır}},
    {"u", {E::Unicode}},
    {"b", {E::Bayrak, RtfBayrağı::Kalın}},
    {"i", {E::Bayrak, RtfBayrağı::İtalik}},
    {"strike", {E::Bayrak, RtfBayrağı::ÜstüÇizili}},
    {"striked", {E::Bayrak, RtfBayrağı::ÜstüÇizili}},
    {"v", {E::Bayrak, RtfBayrağı::Gizli}},
    {"deleted", {E::Bayrak, RtfBayrağı::Silinmiş}},
    {"ulnone", {E::BayrakSil, RtfBayrağı::AltıÇizili}},
    {"f", {E::YazıTipi}},
    {"pnf", {E::YazıTipi}},
    {"fs", {E::Boy}},
    {"cf", {E::Renk}},
    {"plain", {E::HarfBiçimiSıfırla}},
    {"pard", {E::ParagrafBiçimiSıfırla}},
    {"intbl", {E::Tabloda}},
    {"itap", {E::TabloDerinliği}},
    {"ansi", {E::KodSayfası, 1252}},
    {"mac", {E::KodSayfası, 10000}},
    {"pc", {E::KodSayfası, 437}},
    {"pca", {E::KodSayfası, 850}},
    {"ansicpg", {E::AnsiKodSayfası}},
    {"deff", {E::VarsayılanYazıTipi}},
    {"fcharset", {E::KarakterKümesi}},
    {"cpg", {E::YazıTipiKodSayfası}},
    {"pnlvl", {E::MaddeDüzeyi}},
    {"pnlvlbody", {E::MaddeTürü, tür(RtfMaddeTürü::Sayı)}},
    {"pnlvlblt", {E::MaddeTürü, tür(RtfMaddeTürü::İmli)}},
    {"pndec", {E::MaddeTürü, tür(RtfMaddeTürü::Sayı)}},
    {"pnucltr", {E::MaddeTürü, tür(RtfMaddeTürü::BüyükHarf)}},
    {"pnlcltr", {E::MaddeTürü, tür(RtfMaddeTürü::KüçükHarf)}},
    {"pnucrm", {E::MaddeTürü, tür(RtfMaddeTürü::BüyükRoma)}},
    {"pnlcrm", {E::MaddeTürü, tür(RtfMaddeTürü::KüçükRoma)}},
    {"pnstart", {E::MaddeBaşlangıcı}},
    {"red", {E::RenkBileşeni, 0}},
    {"green", {E::RenkBileşeni, 1}},
    {"blue", {E::RenkBileşeni, 2}},
    {"uc", {E::YedekBoyu}},
    {"bin", {E::İkili}},
    {"field", {E::Alan}},
    {"fldinst", {E::AlanKomutu}},
    {"fldrslt", {E::MetinHedefi}},
    {"result", {E::MetinHedefi}},
    {"nesttableprops", {E::İçTabloTanımı}},
    {"upr", {E::İskelet}},
    {"shpinst", {E::İskelet}},
    {"do", {E::İskelet}},
    {"ud", {E::İskeletMetni}},
    {"shptxt", {E::MetinKutusu}},
    {"dptxbxtext", {E::MetinKutusu}},
    {"footnote", {E::Dipnot}},
    {"listtext", {E::ListeMetni}},
    {"pntext", {E::ListeMetni}},
    {"pn", {E::Madde}},
    {"pntxtb", {E::MaddeÖnü}},
    {"pntxta", {E::MaddeArdı}},
    {"fonttbl", {E::YazıTipleri}},
    {"colortbl", {E::Renkler}},
};

using Tablo = std::unordered_map<std::string_view, RtfTanımı>;

Tablo tabloKur()
{
    Tablo tablo;
    for (const std::string_view ad : AtlananHedefler)
        tablo.insert({ad, {E::Atlanan, RtfAtlanan::Paragrafsız}});
    for (const std::string_view ad : AtlananMetinler)
        tablo.insert({ad, {E::Atlanan, RtfAtlanan::Paragraflı}});
    for (const std::string_view ad : AltÇizgiler)
        tablo.insert({ad, {E::Bayrak, RtfBayrağı::AltıÇizili}});
    for (const Satır& satır : Diğerleri)
        tablo.insert({satır.ad, satır.tanım});
    return tablo;
}

struct Küme
{
    int küme;
    int kodSayfası;
};

constexpr Küme Kümeler[] = {{0, 1252},
                            {1, RtfKodSayfası::Belgenin},
                            {2, RtfKodSayfası::Simgesel},
                            {77, 10000},
                            {78, 10001},
                            {79, 10003},
                            {80, 10008},
                            {81, 10002},
                            {83, 10005},
                            {84, 10004},
                            {85, 10006},
                            {86, 10081},
                            {87, 10021},
                            {88, 10029},
                            {89, 10007},
                            {128, 932},
                            {129, 949},
                            {130, 1361},
                            {134, 936},
                            {136, 950},
                            {161, 1253},
                            {162, 1254},
                            {163, 1258},
                            {177, 1255},
                            {178, 1256},
                            {179, 1256},
                            {180, 1256},
                            {181, 1255},
                            {186, 1257},
                            {204, 1251},
                            {222, 874},
                            {238, 1250},
                            {254, 437},
                            {255, 850}};

} // namespace

const RtfTanımı* RtfTanımıBul(std::string_view ad)
{
    static const Tablo tablo = tabloKur();
    if (ad.size() > EnUzunSözcük)
        return nullptr;
    const auto yer = tablo.find(ad);
    return yer == tablo.end() ? nullptr : &yer->second;
}

int RtfKümeKodSayfası(int küme)
{
    const auto* yer = std::lower_bound(std::begin(Kümeler), std::end(Kümeler), küme,
                                       [](const Küme& satır, int aranan) { return satır.küme < aranan; });
    return yer != std::end(Kümeler) && yer->küme == küme ? yer->kodSayfası : RtfKodSayfası::Belgenin;
}
