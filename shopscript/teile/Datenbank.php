<?php
// The shop's database: MySQL/MariaDB by the shop's own settings, or whatever DSN the shop names.

declare(strict_types=1);

namespace Marklink;

use PDO;
use PDOException;
use PDOStatement;
use RuntimeException;

final class Datenbank
{
    /** @var PDO */
    private $pdo;

    /** @var bool */
    private $sqlite;

    /** @var array<string,string[]> */
    private $spalten = [];

    private function __construct(PDO $pdo)
    {
        $this->pdo = $pdo;
        $this->sqlite = $pdo->getAttribute(PDO::ATTR_DRIVER_NAME) === 'sqlite';
    }

    /** By the constants of the shop's configure.php; throws when the database cannot be reached. */
    public static function oeffnen(): self
    {
        $dsn = defined('DB_DSN') ? (string) constant('DB_DSN') : self::dsn_mysql();
        // SQLite would quietly create an empty shop.
        if (strncmp($dsn, 'sqlite:', 7) === 0 && !is_file(substr($dsn, 7))) {
            throw new RuntimeException('Die Datenbank des Shops fehlt.');
        }
        $pdo = new PDO($dsn, self::konstante('DB_SERVER_USERNAME'), self::konstante('DB_SERVER_PASSWORD'), [
            PDO::ATTR_ERRMODE => PDO::ERRMODE_EXCEPTION,
            PDO::ATTR_EMULATE_PREPARES => false,
            PDO::ATTR_DEFAULT_FETCH_MODE => PDO::FETCH_ASSOC,
            PDO::ATTR_CASE => PDO::CASE_LOWER,
            PDO::ATTR_TIMEOUT => 10,
        ]);
        $datenbank = new self($pdo);
        if (!$datenbank->sqlite) {
            // The shop writes rows that strict mode refuses.
            $pdo->exec("SET SESSION sql_mode = ''");
            $datenbank->verbindungszeichensatz_setzen();
        }
        return $datenbank;
    }

    /**
     * Where the shop names no character set for its connection, the tables decide and not the server's default:
     * a latin1 table may hold UTF-8 bytes, which only a latin1 connection hands out unchanged.
     */
    private function verbindungszeichensatz_setzen(): void
    {
        if (defined('DB_SERVER_CHARSET')) {
            return;
        }
        $spalte = $this->zeile("SHOW FULL COLUMNS FROM orders LIKE 'customers_name'");
        $art = explode('_', (string) ($spalte['collation'] ?? ''))[0];
        if (preg_match('/^(utf8|utf8mb3|utf8mb4|latin1)$/D', $art)) {
            $this->pdo->exec('SET NAMES ' . $art);
        }
    }

    /** @return array<int,array<string,mixed>> */
    public function zeilen(string $anweisung, array $werte = []): array
    {
        return $this->binden($anweisung, $werte)->fetchAll();
    }

    /** @return array<string,mixed>|null */
    public function zeile(string $anweisung, array $werte = []): ?array
    {
        return $this->zeilen($anweisung, $werte)[0] ?? null;
    }

    /**
     * The rows of a table whose column holds one of the ids, in the order given.
     *
     * @param int[] $kennungen
     * @return array<int,array<string,mixed>>
     */
    public function zeilen_zu(string $tabelle, string $spalte, array $kennungen, string $ordnung = ''): array
    {
        if ($kennungen === [] || !$this->hat($tabelle, $spalte)) {
            return [];
        }
        return $this->zeilen(
            "SELECT * FROM $tabelle WHERE $spalte IN (" . self::platzhalter($kennungen) . ')'
            . ($ordnung === '' ? '' : " ORDER BY $ordnung"),
            $kennungen
        );
    }

    public static function platzhalter(array $werte): string
    {
        return implode(',', array_fill(0, count($werte), '?'));
    }

    public function ausfuehren(string $anweisung, array $werte): void
    {
        $this->binden($anweisung, $werte);
    }

    public function letzte_kennung(): int
    {
        return (int) $this->pdo->lastInsertId();
    }

    /** On tables without transactions (MyISAM) this is just the calls in order. */
    public function gemeinsam(callable $arbeit): void
    {
        $this->pdo->beginTransaction();
        try {
            $arbeit();
            $this->pdo->commit();
        } catch (\Throwable $fehler) {
            $this->pdo->rollBack();
            throw $fehler;
        }
    }

    /** The database's own clock, as the shop uses it. */
    public function jetzt(): string
    {
        return $this->sqlite ? "datetime('now', 'localtime')" : 'NOW()';
    }

    /** False also when the whole table is missing. */
    public function hat(string $tabelle, string $spalte): bool
    {
        if (!isset($this->spalten[$tabelle])) {
            $this->spalten[$tabelle] = $this->spalten_lesen($tabelle);
        }
        return in_array($spalte, $this->spalten[$tabelle], true);
    }

    /** What the server sends text in ('utf8mb4', 'latin1'); '' where the engine does not say. */
    public function zeichensatz(): string
    {
        if ($this->sqlite) {
            return 'utf8';
        }
        return (string) ($this->zeile('SELECT @@character_set_results AS zeichensatz')['zeichensatz'] ?? '');
    }

    /** @return string[] */
    private function spalten_lesen(string $tabelle): array
    {
        try {
            $zeilen = $this->zeilen($this->sqlite ? "PRAGMA table_info($tabelle)" : "SHOW COLUMNS FROM $tabelle");
        } catch (PDOException $fehler) {
            return [];
        }
        return array_map('strtolower', array_column($zeilen, $this->sqlite ? 'name' : 'field'));
    }

    /** Numbers go as numbers: SQLite does not find the text '1' in a column without a type. */
    private function binden(string $anweisung, array $werte): PDOStatement
    {
        $satz = $this->pdo->prepare($anweisung);
        foreach (array_values($werte) as $i => $wert) {
            $satz->bindValue($i + 1, $wert, is_int($wert) ? PDO::PARAM_INT : PDO::PARAM_STR);
        }
        $satz->execute();
        return $satz;
    }

    private static function dsn_mysql(): string
    {
        $server = self::konstante('DB_SERVER');
        $dsn = 'mysql:dbname=' . self::konstante('DB_DATABASE');
        // "localhost:3307" and "localhost:/run/mysqld.sock" are usual in the shop's settings.
        if (preg_match('/^([^:]*):(\d+)$/D', $server, $teile)) {
            $dsn .= ';host=' . $teile[1] . ';port=' . $teile[2];
        } elseif (preg_match('/^[^:]*:(\/.+)$/D', $server, $teile)) {
            $dsn .= ';unix_socket=' . $teile[1];
        } else {
            $dsn .= ';host=' . $server;
        }
        return defined('DB_SERVER_CHARSET') ? $dsn . ';charset=' . self::konstante('DB_SERVER_CHARSET') : $dsn;
    }

    private static function konstante(string $name): string
    {
        return defined($name) ? (string) constant($name) : '';
    }
}
