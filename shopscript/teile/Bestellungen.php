<?php
// Action get_orders: the orders as the client stages them.

declare(strict_types=1);

namespace Marklink;

final class Bestellungen
{
    /** @var Shop */
    private $shop;

    /** @var Antwort */
    private $antwort;

    private function __construct(Shop $shop, Antwort $antwort)
    {
        $this->shop = $shop;
        $this->antwort = $antwort;
    }

    public static function ausgeben(Shop $shop, Anfrage $anfrage): void
    {
        $stati = null;
        if ($anfrage->roh('order_status') !== '') {
            $stati = $anfrage->kennungen('order_status');
            if ($stati === null) {
                Antwort::ablehnung('Der Parameter order_status ist ungültig.');
                return;
            }
        }
        $daten = (new Bestelldaten($shop))->alle($stati);
        // Reads the first portion, so that a failing statement can still be answered as a failure.
        $noch = $daten->valid();
        $antwort = Antwort::beginnen('ORDER');
        $ausgabe = new self($shop, $antwort);
        for (; $noch; $daten->next(), $noch = $daten->valid()) {
            $ausgabe->bestellung($daten->current());
        }
        $antwort->beenden();
    }

    /** @param array<string,mixed> $bestellung */
    private function bestellung(array $bestellung): void
    {
        $antwort = $this->antwort;
        $antwort->oeffnen('ORDER_INFO');
        $this->gruppe('ORDER_HEADER', $this->kopf($bestellung));
        $antwort->feld('ORDER_COMMENTS', $this->bemerkung($bestellung));
        $this->gruppe('BILLING_ADDRESS', Anschrift::rechnung($this->shop, $bestellung));
        $this->gruppe('DELIVERY_ADDRESS', Anschrift::lesen($this->shop, $bestellung, 'delivery'));
        $this->gruppe('PAYMENT', $this->zahlung($bestellung));
        $this->gruppe('SHIPPING', ['SHIPPING_CLASS' => $this->versandart($bestellung)]);
        $this->positionen($bestellung);
        $this->summen($bestellung);
        $antwort->schliessen();
    }

    /** @return array<string,string> */
    private function kopf(array $bestellung): array
    {
        $kunde = Anschrift::lesen($this->shop, $bestellung, 'customers');
        return [
            'ORDER_ID' => (string) $bestellung['orders_id'],
            'CUSTOMER_ID' => $this->text($bestellung, 'customers_id'),
            'CUSTOMER_NAME' => $kunde['NAME'],
            'CUSTOMER_CID' => $this->text($bestellung, 'customers_cid'),
            'CUSTOMER_TELEPHONE' => $this->text($bestellung, 'customers_telephone'),
            'CUSTOMER_EMAIL' => $this->text($bestellung, 'customers_email_address'),
            'CUSTOMER_VAT_ID' => $this->text($bestellung, 'customers_vat_id'),
            'CUSTOMER_GROUP_NAME' => $this->text($bestellung, 'customers_status_name'),
            'CUSTOMER_DISCOUNT' => Shop::zahl_schreiben($this->shop->zahl($bestellung, 'customers_status_discount'), 2),
            'ORDER_STATUS' => $this->text($bestellung, 'orders_status'),
            'ORDER_DATE' => $this->shop->zeitpunkt($bestellung, 'date_purchased'),
            'ORDER_IP' => $this->text($bestellung, 'customers_ip'),
            'ORDER_CURRENCY' => $this->text($bestellung, 'currency'),
        ];
    }

    /** The order's own column is cut at 255 characters, or missing; the history's first row then has the whole text. */
    private function bemerkung(array $bestellung): string
    {
        $erste = $this->text($bestellung, 'erste_bemerkung');
        if (!array_key_exists('comments', $bestellung)) {
            return $erste;
        }
        $eigene = $this->text($bestellung, 'comments');
        return $eigene !== '' && strncmp($erste, $eigene, strlen($eigene)) === 0 ? $erste : $eigene;
    }

    /** @return array<string,string> */
    private function zahlung(array $bestellung): array
    {
        $klasse = $this->text($bestellung, 'payment_class');
        $bank = $bestellung['bank'] ?? [];
        $konto = $this->text($bank, 'banktransfer_number');
        $blz = $this->text($bank, 'banktransfer_blz');
        if ($konto === '') {
            // Later shops keep the international numbers.
            $konto = $this->text($bank, 'banktransfer_iban');
            $blz = $blz === '' ? $this->text($bank, 'banktransfer_bic') : $blz;
        }
        return [
            'PAYMENT_METHOD' => $klasse === '' ? $this->text($bestellung, 'payment_method') : $klasse,
            'PAYMENT_BANKTRANS_NUMBER' => $konto,
            'PAYMENT_BANKTRANS_BNAME' => $this->text($bank, 'banktransfer_bankname'),
            'PAYMENT_BANKTRANS_BLZ' => $blz,
            'PAYMENT_BANKTRANS_OWNER' => $this->text($bank, 'banktransfer_owner'),
            'PAYMENT_CC_NUMBER' => $this->kartennummer($bestellung),
            'PAYMENT_CC_CVV' => $this->text($bestellung, 'cc_cvv'),
            'PAYMENT_CC_EXPIRES' => $this->text($bestellung, 'cc_expires'),
            'PAYMENT_CC_OWNER' => $this->text($bestellung, 'cc_owner'),
        ];
    }

    /** Digits, or digits with the shop's mask; an encrypted or erased number (sixteen zeros) is none. */
    private function kartennummer(array $bestellung): string
    {
        $nummer = $this->text($bestellung, 'cc_number');
        return preg_match('/^[0-9Xx* -]+$/D', $nummer) && !preg_match('/^0+$/D', $nummer) ? $nummer : '';
    }

    private function versandart(array $bestellung): string
    {
        return $this->text($bestellung, array_key_exists('shipping_class', $bestellung) ? 'shipping_class' : 'shipping_method');
    }

    private function positionen(array $bestellung): void
    {
        $kurs = self::kurs($bestellung);
        $this->antwort->oeffnen('ORDER_PRODUCTS');
        foreach ($bestellung['positionen'] as $zeile) {
            $zuschlaege = [];
            foreach ($zeile['optionen'] as $option) {
                // Rounded as it goes out, so that the sum at the client is the sum here.
                $zuschlaege[] = round(Preise::zuschlag($option, $kurs), 6);
            }
            [$preis, $rabatt] = Preise::position($zeile, $kurs, $zuschlaege);
            $this->antwort->oeffnen('PRODUCT');
            $this->antwort->felder([
                'PRODUCTS_ID' => $this->text($zeile, 'products_id'),
                'PRODUCTS_QUANTITY' => self::menge($this->text($zeile, 'products_quantity')),
                'PRODUCTS_MODEL' => $this->positionstext($zeile, 'products_model'),
                'PRODUCTS_NAME' => $this->positionstext($zeile, 'products_name'),
                'PRODUCTS_DISCOUNT_MADE' => Shop::zahl_schreiben($rabatt, 2),
                'PRODUCTS_PRICE' => Shop::zahl_schreiben($preis, 6),
            ]);
            foreach ($zeile['optionen'] as $i => $option) {
                $this->gruppe('OPTION', [
                    'PRODUCTS_OPTIONS' => $this->positionstext($option, 'products_options'),
                    'PRODUCTS_OPTIONS_VALUES' => $this->positionstext($option, 'products_options_values'),
                    'PRODUCTS_OPTIONS_PRICE' => Shop::zahl_schreiben($zuschlaege[$i], 6),
                ]);
            }
            $this->antwort->schliessen();
        }
        $this->antwort->schliessen();
    }

    private function summen(array $bestellung): void
    {
        $saetze = array_map('floatval', array_column($bestellung['positionen'], 'products_tax'));
        $mit_steuer = in_array('ot_tax', array_column($bestellung['summen'], 'class'), true);
        $this->antwort->oeffnen('ORDER_TOTAL');
        foreach ($bestellung['summen'] as $zeile) {
            $klasse = $this->text($zeile, 'class');
            $titel = html_entity_decode(strip_tags($this->text($zeile, 'title')), ENT_QUOTES | ENT_HTML401, 'UTF-8');
            $titel = trim(str_replace("\u{A0}", ' ', $titel));
            $satz = Preise::steuersatz($klasse, $titel, $saetze, $mit_steuer);
            $this->gruppe('TOTAL', [
                'TOTAL_CLASS' => $klasse,
                'TOTAL_VALUE' => Shop::zahl_schreiben($this->shop->zahl($zeile, 'value'), 4),
                'TOTAL_TITLE' => $titel,
                'TOTAL_SORT_ORDER' => $this->text($zeile, 'sort_order'),
                // Coupons and vouchers are kept positive although they are taken off.
                'TOTAL_PREFIX' => in_array($klasse, ['ot_coupon', 'ot_gv'], true) ? '-' : '+',
                'TOTAL_TAX' => $satz === null ? '' : Shop::zahl_schreiben($satz, 4),
            ]);
        }
        $this->antwort->schliessen();
    }

    /** @param array<string,string> $felder */
    private function gruppe(string $name, array $felder): void
    {
        $this->antwort->oeffnen($name);
        $this->antwort->felder($felder);
        $this->antwort->schliessen();
    }

    private function text(array $zeile, string $feld): string
    {
        return $this->shop->text($zeile, $feld);
    }

    /** The client joins the texts of a line with these two signs and does not escape them. */
    private function positionstext(array $zeile, string $feld): string
    {
        return str_replace(["\u{D7}", '~'], ['x', '-'], $this->text($zeile, $feld));
    }

    /** "2.0000" is 2 pieces. */
    private static function menge(string $text): string
    {
        return strpos($text, '.') === false ? $text : rtrim(rtrim($text, '0'), '.');
    }

    private static function kurs(array $bestellung): float
    {
        $kurs = (float) ($bestellung['currency_value'] ?? 0);
        return $kurs > 0 ? $kurs : 1.0;
    }
}
