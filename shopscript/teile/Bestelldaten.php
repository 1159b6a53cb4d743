<?php
// Orders with all that belongs to them, read in portions: a few statements for many orders, and never more than
// one portion in memory.

declare(strict_types=1);

namespace Marklink;

final class Bestelldaten
{
    private const PORTION = 200;

    /** @var Shop */
    private $shop;

    public function __construct(Shop $shop)
    {
        $this->shop = $shop;
    }

    /**
     * Every order in the order of its number, as the row of `orders` plus the keys 'positionen' (lines, each with
     * 'optionen'), 'summen', 'bank' and 'erste_bemerkung'.
     *
     * @param int[]|null $stati status ids, null for all
     * @return \Generator<int,array<string,mixed>>
     */
    public function alle(?array $stati): \Generator
    {
        $bedingung = $stati === null ? '' : ' AND orders_status IN (' . Datenbank::platzhalter($stati) . ')';
        $letzte = 0;
        do {
            $bestellungen = $this->shop->datenbank->zeilen(
                "SELECT * FROM orders WHERE orders_id > ?$bedingung ORDER BY orders_id LIMIT " . self::PORTION,
                array_merge([$letzte], $stati ?? [])
            );
            $anzahl = count($bestellungen);
            foreach ($this->ergaenzen($bestellungen) as $bestellung) {
                $letzte = (int) $bestellung['orders_id'];
                yield $bestellung;
            }
        } while ($anzahl === self::PORTION);
    }

    /** @param array<int,array<string,mixed>> $bestellungen */
    private function ergaenzen(array $bestellungen): array
    {
        $kennungen = array_map('intval', array_column($bestellungen, 'orders_id'));
        $datenbank = $this->shop->datenbank;
        $positionen = self::gruppieren($datenbank->zeilen_zu('orders_products', 'orders_id', $kennungen, 'orders_products_id'));
        $optionen = self::gruppieren(
            $datenbank->zeilen_zu('orders_products_attributes', 'orders_id', $kennungen, 'orders_products_attributes_id'),
            'orders_products_id'
        );
        $summen = self::gruppieren($datenbank->zeilen_zu('orders_total', 'orders_id', $kennungen, 'sort_order, orders_total_id'));
        $bank = self::gruppieren($datenbank->zeilen_zu('banktransfer', 'orders_id', $kennungen));
        $bemerkungen = $this->erste_bemerkungen($kennungen);

        foreach ($bestellungen as $i => $bestellung) {
            $kennung = (int) $bestellung['orders_id'];
            $zeilen = $positionen[$kennung] ?? [];
            foreach ($zeilen as $j => $zeile) {
                $zeilen[$j]['optionen'] = $optionen[(int) $zeile['orders_products_id']] ?? [];
            }
            $bestellungen[$i]['positionen'] = $zeilen;
            $bestellungen[$i]['summen'] = $summen[$kennung] ?? [];
            // The table has no key: an order paid a second way has several rows, and the last one holds.
            $bestellungen[$i]['bank'] = isset($bank[$kennung]) ? end($bank[$kennung]) : null;
            $bestellungen[$i]['erste_bemerkung'] = $bemerkungen[$kennung] ?? '';
        }
        return $bestellungen;
    }

    /**
     * The buyer's remark as the history's first row holds it: uncut, and in old shops the only place.
     *
     * @param int[] $kennungen
     * @return array<int,string>
     */
    private function erste_bemerkungen(array $kennungen): array
    {
        if ($kennungen === [] || !$this->shop->datenbank->hat('orders_status_history', 'comments')) {
            return [];
        }
        $zeilen = $this->shop->datenbank->zeilen(
            'SELECT h.orders_id, h.comments FROM orders_status_history h JOIN (SELECT MIN(orders_status_history_id) AS erste'
            . ' FROM orders_status_history WHERE orders_id IN (' . Datenbank::platzhalter($kennungen) . ')'
            . ' GROUP BY orders_id) e ON h.orders_status_history_id = e.erste',
            $kennungen
        );
        return array_column($zeilen, 'comments', 'orders_id');
    }

    /** @return array<int,array<int,array<string,mixed>>> */
    private static function gruppieren(array $zeilen, string $spalte = 'orders_id'): array
    {
        $gruppen = [];
        foreach ($zeilen as $zeile) {
            $gruppen[(int) $zeile[$spalte]][] = $zeile;
        }
        return $gruppen;
    }
}
