<?php
// Action get_customers: the shop's customers, or the one of an order.

declare(strict_types=1);

namespace Marklink;

final class Kunden
{
    private const PORTION = 200;

    /** @var Shop */
    private $shop;

    /** @var array<int,string> */
    private $gruppen;

    private function __construct(Shop $shop)
    {
        $this->shop = $shop;
        $this->gruppen = Listen::namen($shop, 'customers_status', 'customers_status_id', 'customers_status_name', $shop->sprache());
    }

    public static function ausgeben(Shop $shop, Anfrage $anfrage): void
    {
        $kunden = new self($shop);
        if ($anfrage->vorhanden('customers_id')) {
            $kennung = $anfrage->kennung('customers_id');
            if ($kennung === null) {
                Antwort::ablehnung('Der Parameter customers_id ist ungültig.');
                return;
            }
            $daten = $kunden->einer($kennung);
        } else {
            $daten = $kunden->alle();
        }
        // Reads the first portion, so that a failing statement can still be answered as a failure.
        $noch = $daten->valid();
        $antwort = Antwort::beginnen('CUSTOMERS');
        for (; $noch; $daten->next(), $noch = $daten->valid()) {
            $felder = $daten->current();
            $antwort->oeffnen('CUSTOMERS_DATA');
            $gruppe = $felder['STATUS_DATA'];
            unset($felder['STATUS_DATA']);
            $antwort->felder($felder);
            $antwort->oeffnen('STATUS_DATA');
            $antwort->feld('NAME', $gruppe);
            $antwort->schliessen();
            $antwort->schliessen();
        }
        $antwort->beenden();
    }

    private function einer(int $kennung): \Generator
    {
        $zeilen = $this->shop->datenbank->zeilen_zu('customers', 'customers_id', [$kennung]);
        if ($zeilen !== []) {
            yield from $this->felder($zeilen);
            return;
        }
        // A guest's account may be gone; the last order still has the copy.
        $zeile = $kennung === 0 ? null : $this->shop->datenbank->zeile(
            'SELECT * FROM orders WHERE customers_id = ? ORDER BY orders_id DESC LIMIT 1',
            [$kennung]
        );
        if ($zeile !== null) {
            yield $this->aus_bestellung($zeile);
        }
    }

    private function alle(): \Generator
    {
        $letzte = 0;
        do {
            $zeilen = $this->shop->datenbank->zeilen(
                'SELECT * FROM customers WHERE customers_id > ? ORDER BY customers_id LIMIT ' . self::PORTION,
                [$letzte]
            );
            yield from $this->felder($zeilen);
            $letzte = (int) (end($zeilen)['customers_id'] ?? 0);
        } while (count($zeilen) === self::PORTION);
    }

    /** @param array<int,array<string,mixed>> $zeilen rows of `customers` */
    private function felder(array $zeilen): \Generator
    {
        $datenbank = $this->shop->datenbank;
        $kennungen = array_map('intval', array_column($zeilen, 'customers_id'));
        $adressen = [];
        foreach ($datenbank->zeilen_zu('address_book', 'customers_id', $kennungen, 'address_book_id') as $adresse) {
            $adressen[(int) $adresse['customers_id']][(int) $adresse['address_book_id']] = $adresse;
        }
        $infos = array_column($datenbank->zeilen_zu('customers_info', 'customers_info_id', $kennungen), null, 'customers_info_id');
        $laender = $this->laender($adressen);
        foreach ($zeilen as $zeile) {
            $kennung = (int) $zeile['customers_id'];
            $eigene = $adressen[$kennung] ?? [];
            $adresse = $eigene[(int) $zeile['customers_default_address_id']] ?? (reset($eigene) ?: []);
            yield $this->aus_konto($zeile, $adresse, $infos[$kennung] ?? [], $laender);
        }
    }

    /**
     * @param array<int,string> $laender
     * @return array<string,string>
     */
    private function aus_konto(array $konto, array $adresse, array $info, array $laender): array
    {
        $text = function (string $feld, string $ersatz = '') use ($konto, $adresse): string {
            $wert = $this->shop->text($konto, $feld);
            return $wert === '' && $ersatz !== '' ? $this->shop->text($adresse, $ersatz) : $wert;
        };
        $angelegt = $this->shop->zeitpunkt($info, 'customers_info_date_account_created');
        return [
            'CUSTOMERS_ID' => (string) $konto['customers_id'],
            'CUSTOMERS_CID' => $text('customers_cid'),
            'EMAIL' => $text('customers_email_address'),
            'GENDER' => $text('customers_gender', 'entry_gender'),
            'COMPANY' => $this->shop->text($adresse, 'entry_company'),
            'FIRSTNAME' => $text('customers_firstname', 'entry_firstname'),
            'LASTNAME' => $text('customers_lastname', 'entry_lastname'),
            'STREET' => $this->shop->text($adresse, 'entry_street_address'),
            'SUBURB' => $this->shop->text($adresse, 'entry_suburb'),
            'POSTCODE' => $this->shop->text($adresse, 'entry_postcode'),
            'CITY' => $this->shop->text($adresse, 'entry_city'),
            'COUNTRY' => $laender[(int) ($adresse['entry_country_id'] ?? 0)] ?? '',
            'TELEPHONE' => $text('customers_telephone'),
            'FAX' => $text('customers_fax'),
            'VAT_ID' => $text('customers_vat_id'),
            'BIRTHDAY' => substr($this->shop->zeitpunkt($konto, 'customers_dob'), 0, 10),
            'DATE_ACCOUNT_CREATED' => $angelegt === '' ? $this->shop->zeitpunkt($konto, 'customers_date_added') : $angelegt,
            'STATUS_DATA' => $this->gruppen[(int) ($konto['customers_status'] ?? -1)] ?? '',
        ];
    }

    /** @return array<string,string> */
    private function aus_bestellung(array $bestellung): array
    {
        $kunde = Anschrift::lesen($this->shop, $bestellung, 'customers');
        unset($kunde['NAME']);
        return [
            'CUSTOMERS_ID' => (string) $bestellung['customers_id'],
            'CUSTOMERS_CID' => $this->shop->text($bestellung, 'customers_cid'),
            'EMAIL' => $this->shop->text($bestellung, 'customers_email_address'),
            'GENDER' => $this->shop->text($bestellung, 'customers_gender'),
        ] + $kunde + [
            'TELEPHONE' => $this->shop->text($bestellung, 'customers_telephone'),
            'FAX' => '',
            'VAT_ID' => $this->shop->text($bestellung, 'customers_vat_id'),
            'BIRTHDAY' => '',
            'DATE_ACCOUNT_CREATED' => $this->shop->zeitpunkt($bestellung, 'date_purchased'),
            'STATUS_DATA' => $this->shop->text($bestellung, 'customers_status_name'),
        ];
    }

    /** @return array<int,string> ISO-2 code by the shop's country id, for the addresses given */
    private function laender(array $adressen): array
    {
        $kennungen = [];
        foreach ($adressen as $eigene) {
            foreach ($eigene as $adresse) {
                $kennungen[(int) $adresse['entry_country_id']] = true;
            }
        }
        $zeilen = $this->shop->datenbank->zeilen_zu('countries', 'countries_id', array_keys($kennungen));
        return array_column($zeilen, 'countries_iso_code_2', 'countries_id');
    }
}
