<?php
// Joins marklink.php and its parts into the one file that goes to the shop's server, and puts the
// companion file beside it unless there is one: php zusammensetzen.php ZIELORDNER

declare(strict_types=1);

if (PHP_SAPI !== 'cli') {
    exit; // a tool for the command line; it must do nothing where a web server runs it
}
$ziel = rtrim($argv[1] ?? '', '/');
if ($ziel === '' || !is_dir($ziel)) {
    fwrite(STDERR, "Aufruf: php zusammensetzen.php ZIELORDNER\n");
    exit(2);
}
$kopf = "<?php\n// Marklink-Shopscript in einer Datei.\n\ndeclare(strict_types=1);\n\n";
$einstieg = (string) file_get_contents(__DIR__ . '/marklink.php');
preg_match('/foreach \(\[(.*?)\] as \$Teil\).*?\n}\n/s', $einstieg, $schleife);
preg_match_all("/'(\w+)'/", $schleife[1], $namen);

$teile = '';
foreach ($namen[1] as $name) {
    $quelle = (string) file_get_contents(__DIR__ . "/teile/$name.php");
    $quelle = preg_replace('/^<\?php\n|^declare\(strict_types=1\);\n\n/m', '', $quelle);
    $teile .= preg_replace('/^namespace Marklink;\n(.*)$/ms', "namespace Marklink {\n$1}\n\n", $quelle);
}
$rest = preg_replace('/^<\?php\n.*?declare\(strict_types=1\);\n\n/s', '', str_replace($schleife[0], '', $einstieg));
// Output stays caught from the first line of code on, so the entry's settings come after the classes, which print nothing.
$datei = $kopf . $teile . "namespace {\n\n" . $rest . "}\n";

if (file_put_contents("$ziel/marklink.php", $datei) === false) {
    fwrite(STDERR, "Die Datei $ziel/marklink.php kann nicht geschrieben werden.\n");
    exit(1);
}
if (!file_exists("$ziel/marklink_einstellungen.php")) {
    copy(__DIR__ . '/marklink_einstellungen.php', "$ziel/marklink_einstellungen.php");
}
