// The list of words, and how it is searched.
#include "companions/check/synonyms.h"

#include "companions/check/vocabulary.h"

#include <QHash>

#include <algorithm>
#include <initializer_list>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

struct Synonyms
{
    QLatin1StringView name;  // of an element or an attribute, or of settings
    QLatin1StringView words; // in small letters without accents, parted by blanks
};

// English, Italian, German, French, Spanish. What means several things comes more than once; the
// first of them that the place takes counts.
// clang-format off
constexpr Synonyms synonyms[] = {
    {"printPartialOrder"_L1,
     "kitchen kitchenorder order ticket kitchenticket comanda cucina ordine kuche kueche "
     "kuchenbon kuechenbon bestellung commande cuisine boncuisine cocina pedido"_L1},
    {"printFullOrder"_L1,
     "bill check preconto conto prefiscal proforma rechnungsvorschau zwischenrechnung addition "
     "cuenta precuenta"_L1},
    {"printFullOrderReceipt"_L1,
     "receipt fullreceipt receipts sale scontrino ricevuta beleg bon kassenbon quittung recu "
     "ticketdecaisse recibo tique"_L1},
    {"printFullOrderInvoice"_L1,
     "invoice fullinvoice fattura rechnung facture factura"_L1},
    {"printFullOrderDelivery"_L1,
     "delivery deliverynote bolla consegna ddt lieferschein lieferung livraison bonlivraison "
     "albaran entrega"_L1},
    {"printFullOrderFiscal"_L1,
     "fiscal fiscalreceipt scontrinofiscale fiscale fiskal fiskalbon ticketfiscal"_L1},
    {"printAbstractOrderReceipt"_L1,
     "summaryreceipt abstractreceipt scontrinoriassuntivo"_L1},
    {"printAbstractOrderInvoice"_L1,
     "summaryinvoice abstractinvoice fatturariassuntiva"_L1},
    {"printAbstractOrderFiscal"_L1,
     "summaryfiscal abstractfiscal"_L1},
    {"printReport"_L1,
     "zreport xreport dailyreport closing chiusura rapporto bericht tagesabschluss abschluss "
     "rapportz cloture informe cierre"_L1},
    {"printSold"_L1,
     "solditems sales venduto vendite verkauft verkaufte verkaufe ventes vendus ventas "
     "vendidos"_L1},
    {"printStatementOfAccount"_L1,
     "statement account estrattoconto kontoauszug releve relevedecompte extracto "
     "estadodecuenta"_L1},
    {"method"_L1,
     "document documento dokument type doctype"_L1},
    {"orderinfo"_L1,
     "order info orderdata ordine bestellung commande pedido auftrag"_L1},
    {"customer"_L1,
     "client buyer guest cliente kunde gast acheteur comprador"_L1},
    {"company"_L1,
     "firm shop store business ditta azienda negozio firma unternehmen societe entreprise "
     "magasin empresa tienda"_L1},
    {"headers"_L1,
     "header heading intestazione kopfzeile kopf entete encabezado cabecera"_L1},
    {"receipt"_L1,
     "scontrino ricevuta beleg quittung bon recu recibo ticket"_L1},
    {"invoice"_L1,
     "bill fattura rechnung facture factura"_L1},
    {"delivery"_L1,
     "deliverynote shipment bolla ddt consegna lieferschein lieferung livraison albaran "
     "entrega"_L1},
    {"receipe"_L1,
     "item product article position line row dish recipe plu articolo prodotto ricetta piatto voce "
     "riga artikel produkt gericht posten speise zeile produit plat ligne articulo "
     "producto plato linea"_L1},
    {"receipe_type"_L1,
     "category group kind categoria reparto kategorie gruppe categorie groupe grupo"_L1},
    {"variant"_L1,
     "extra option modifier addition variante opzione aggiunta modifica zusatz supplement topping "
     "opcion"_L1},
    {"notPaid"_L1,
     "unpaid due open rest nonpagato dovuto resto offen unbezahlt impaye nopagado pendiente"_L1},
    {"taxrate_item"_L1,
     "tax taxes taxrate taxline vat vatline iva aliquota mwst steuer steuersatz tva taxe "
     "impuesto"_L1},
    {"statement_list"_L1,
     "statements list header movements"_L1},
    {"statement"_L1,
     "movement entry transaction booking movimento movimenti operazione buchung bewegung "
     "mouvement operation movimiento"_L1},
    {"date"_L1,
     "period range periodo zeitraum periode"_L1},
    {"receiptssummary"_L1,
     "receipts receiptsummary scontrini ricevute belege quittungen recus recibos"_L1},
    {"invoicessummary"_L1,
     "invoices invoicesummary fatture rechnungen factures facturas"_L1},
    {"cancelledsummary"_L1,
     "cancelled canceled voids voided annullati storni stornos annules anulados"_L1},
    {"number"_L1,
     "quantity qty count pieces pcs units quantita qta pezzi numero menge anzahl stueck "
     "stuck stk quantite qte nombre cantidad cant unidades"_L1},
    {"quantity"_L1,
     "number qty count pieces pcs units quantita qta pezzi numero menge anzahl stueck "
     "stuck stk quantite qte nombre cantidad cant unidades"_L1},
    {"name"_L1,
     "description title label caption text article item product nome descrizione "
     "denominazione articolo prodotto bezeichnung beschreibung artikel designation libelle "
     "nom nombre descripcion producto"_L1},
    {"description"_L1,
     "name title label caption text article item product nome descrizione denominazione "
     "articolo prodotto bezeichnung beschreibung artikel designation libelle nom nombre "
     "descripcion producto"_L1},
    {"price"_L1,
     "unitprice cost rate prezzo prezzounitario costo preis einzelpreis stueckpreis "
     "stuckpreis kosten prix prixunitaire cout precio preciounitario coste"_L1},
    {"totalPrice"_L1,
     "total tot amount sum linetotal rowtotal subtotal value totale importo gesamtpreis gesamt "
     "summe betrag montant somme importe"_L1},
    {"amount"_L1,
     "total sum value price totalprice importo totale prezzo betrag summe preis montant "
     "somme importe precio"_L1},
    {"price"_L1,
     "total tot totalprice amount sum value importo totale betrag summe montant somme importe"_L1},
    {"total"_L1,
     "sum tot amount grandtotal value totale importo gesamt gesamtbetrag summe betrag montant "
     "somme importe suma"_L1},
    {"totals"_L1,
     "sums total tot taxes taxtotals amounts totali summen totaux totales"_L1},
    {"telephone"_L1,
     "phone tel mobile cell cellphone cellulare telefono telefon handy portable movil"_L1},
    {"tax"_L1,
     "vat taxes iva imposta imposte mwst ust steuer tva taxe impot impuesto"_L1},
    {"taxrate"_L1,
     "vatrate rate vat tax aliquota iva steuersatz mwst mwstsatz taux tva tipo"_L1},
    {"taxable"_L1,
     "net base netto imponibile bemessungsgrundlage ht neto baseimponible"_L1},
    {"department"_L1,
     "dept dep vatgroup reparto abteilung warengruppe rayon departement departamento "
     "seccion"_L1},
    {"serialnumber"_L1,
     "number serial no documentnumber invoicenumber receiptnumber numero nummer "
     "belegnummer rechnungsnummer"_L1},
    {"waiter"_L1,
     "server operator staff user cameriere operatore kellner bedienung serveur camarero"_L1},
    {"table"_L1,
     "tavolo tisch mesa seat"_L1},
    {"note"_L1,
     "comment comments remark remarks notes memo text nota commento osservazioni "
     "bemerkung hinweis notiz remarque commentaire comentario observacion"_L1},
    {"credit"_L1,
     "balance credito guthaben avoir saldo"_L1},
    {"date"_L1,
     "day data datum tag jour fecha"_L1},
    {"time"_L1,
     "hour ora orario zeit uhrzeit heure hora"_L1},
    {"billingaddress"_L1,
     "address invoiceaddress indirizzo adresse anschrift rechnungsadresse direccion"_L1},
    {"deliveryaddress"_L1,
     "shippingaddress shipto lieferadresse indirizzoconsegna adresselivraison "
     "direccionentrega"_L1},
    {"fiscalcode"_L1,
     "taxcode taxid codicefiscale steuernummer codefiscal nif"_L1},
    {"licensenumber"_L1,
     "licence vatnumber vatid partitaiva piva ustid numerotva cif"_L1},
    {"begindate"_L1,
     "from start startdate since dal inizio von beginn debut desde inicio"_L1},
    {"enddate"_L1,
     "to end until till al fine bis ende fin hasta"_L1},
    {"cash"_L1,
     "contanti bar bargeld especes efectivo"_L1},
    {"creditCard"_L1,
     "card carta cartadicredito kreditkarte karte carte tarjeta"_L1},
    {"bancomat"_L1,
     "debit debitcard debito girocard ec"_L1},
    {"other"_L1,
     "others rest altro altri sonstige autre otro otros"_L1},
    {"ipaddress"_L1,
     "ip host address hostname server indirizzoip indirizzo adresse ipadresse adresseip "
     "direccionip"_L1},
    {"type"_L1,
     "kind reason tipo causale art typ grund genre motivo"_L1},

    // Groups of settings, and what stands in them.
    {"language"_L1,
     "locale translation labels lingua sprache langue idioma"_L1},
    {"doc"_L1,
     "order orderdoc kitchen kitchendoc kitchenorder comanda ordine bestellung commande "
     "pedido"_L1},
    {"prefiscaldoc"_L1,
     "fullorder fullorderdoc preconto"_L1},
    {"receiptdoc"_L1,
     "scontrino ricevuta beleg quittung bon recu recibo ticket"_L1},
    {"invoicedoc"_L1,
     "bill fattura rechnung facture factura"_L1},
    {"deliverydoc"_L1,
     "deliverynote shipment bolla consegna lieferschein lieferung livraison albaran "
     "entrega"_L1},
    {"reportdoc"_L1,
     "statement statementdoc periodreport bericht rapporto rapport informe"_L1},
    {"paperWidth"_L1,
     "width linewidth columns larghezza breite papierbreite largeur ancho"_L1},
    {"quantityFieldWidth"_L1,
     "quantitywidth qtywidth"_L1},
    {"priceFieldWidth"_L1,
     "pricewidth"_L1},
    {"totalPriceFieldWidth"_L1,
     "totalwidth totalpricewidth amountwidth"_L1},
    {"file"_L1,
     "catalogue catalog filename"_L1},
    {"basedir"_L1,
     "dir directory folder path basepath"_L1},
};
// clang-format on

/// Of figures that no document has a place for, and of what has its place in rows of its own.
constexpr auto otherFigures =
    "discount rebate sconto rabatt nachlass remise rabais descuento surcharge supplemento zuschlag "
    "recargo maggiorazione tip mancia trinkgeld pourboire propina service servizio coperto deposit "
    "pfand consigne cauzione weight peso gewicht poids change resto rueckgeld given paid pagato "
    "bezahlt"_L1;

/// A word as the list has it.
QString plain(const QString &word)
{
    QString letters;
    for (const QChar c : word.normalized(QString::NormalizationForm_D)) {
        if (c.isLetter())
            letters += c.toLower();
    }
    return letters;
}

/// What each word may mean, in the order of the list.
QHash<QString, QStringList> namesByWord()
{
    QHash<QString, QStringList> names;
    for (const Synonyms &row : synonyms) {
        for (const QString &word : QString(row.words).split(u' '))
            names[word].append(row.name);
    }
    return names;
}

/// What a word may mean, in the order of the list. Names of methods begin with "print", which goes
/// without saying.
QStringList meaningsOf(const QString &word)
{
    static const auto byWord = namesByWord();
    const QString letters = plain(word);
    const auto found = byWord.constFind(letters);
    if (found != byWord.constEnd() || !letters.startsWith("print"_L1))
        return byWord.value(letters);
    return byWord.value(letters.mid(5));
}

bool isAnyOf(const QStringList &names, std::initializer_list<QLatin1StringView> wanted)
{
    return std::any_of(wanted.begin(), wanted.end(),
                       [&](QLatin1StringView name) { return names.contains(name); });
}

} // namespace

QString synonymOf(const QString &word, const QStringList &names)
{
    const auto meant = meaningsOf(word);
    const auto found = std::find_if(meant.begin(), meant.end(),
                                    [&](const QString &name) { return names.contains(name); });
    return found == meant.end() ? QString() : *found;
}

bool meansFigure(const QString &word)
{
    static const QStringList others = QString(otherFigures).split(u' ');
    namespace name = vocabulary::attribute;
    return others.contains(plain(word))
           || isAnyOf(meaningsOf(word),
                      {name::number, name::price, name::totalPrice, name::amount, name::total,
                       name::tax, name::taxrate, name::taxable, name::notPaid, name::credit});
}

bool meansTime(const QString &word)
{
    namespace name = vocabulary::attribute;
    return word == name::date || word == name::time
           || isAnyOf(meaningsOf(word), {name::date, name::time});
}

} // namespace korvel::check
