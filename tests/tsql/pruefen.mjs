// node pruefen.mjs PARSER_FOLDER FOLDER FILE...
//
// Checks the statements that tests/support/Mitschrift wrote down: by a T-SQL parser, and on the level of tokens for what
// that parser lets pass though SQL Server does not. Ends with 1 when a statement is refused and not known to be
// (bekannt.mjs), when something known does not occur any more, and when there are suspiciously few statements.
import { readFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { absichtlich_falsch, gegenprobe, mindestens, unverstanden } from './bekannt.mjs';
import { beanstanden, zerlegen } from './marken.mjs';

const [parserordner, ordner, ...dateien] = process.argv.slice(2);
const { Parser } = createRequire(parserordner + '/')('node-sql-parser/build/transactsql');
const parser = new Parser();

/** What the parser says against a text; nothing when it takes it. */
function einwenden(text) {
  try {
    parser.astify(text, { database: 'transactsql' });
    return undefined;
  } catch (e) {
    const stelle = e.location ? ` at "${text.slice(e.location.start.offset, e.location.start.offset + 25)}"` : '';
    return `the parser stops${stelle}`;
  }
}

/** Refused as it is, a statement is read again with the constructs replaced that the parser does not know. */
function pruefen(quelle, text) {
  const marken = zerlegen(text);
  // The server takes several in a batch, the library sends one at a time.
  if (quelle === 'naht' && marken.some((m) => m.wert === ';')) return 'more than one statement';
  const falsch = beanstanden(marken);
  if (falsch) return falsch;
  const einwand = einwenden(text);
  if (!einwand) return undefined;
  let ersetzt = text;
  const gebraucht = unverstanden.filter((u) => {
    const vorher = ersetzt;
    ersetzt = ersetzt.replace(u.muster, u.ersatz);
    return vorher !== ersetzt;
  });
  if (gebraucht.length === 0 || einwenden(ersetzt)) return einwand;
  for (const u of gebraucht) u.kommt_vor = true;
  return undefined;
}

const herkunft = new Map(); // "source<tab>text" -> the first file that has it
const fehler = [];
for (const datei of dateien) {
  let inhalt = '';
  try {
    inhalt = readFileSync(`${ordner}/${datei}`, 'utf8');
  } catch {
    fehler.push(`${datei} is missing: its test wrote nothing down`);
  }
  for (const zeile of inhalt.split('\n')) if (zeile && !herkunft.has(zeile)) herkunft.set(zeile, datei);
}

for (const [zeile, datei] of herkunft) {
  const [quelle, text] = [zeile.slice(0, zeile.indexOf('\t')), zeile.slice(zeile.indexOf('\t') + 1)];
  const einwand = pruefen(quelle, text);
  if (!einwand) continue;
  const bekannt = absichtlich_falsch.find((a) => a.muster.test(text));
  if (bekannt) bekannt.kommt_vor = true;
  else fehler.push(`${datei}: ${einwand}: ${text}`);
}
for (const text of gegenprobe) if (!pruefen('leitung', text)) fehler.push(`is let pass: ${text}`);
for (const u of unverstanden) if (!u.kommt_vor) fehler.push(`bekannt.mjs: no longer needed: ${u.muster}`);
for (const a of absichtlich_falsch) if (!a.kommt_vor) fehler.push(`bekannt.mjs: no longer refused: ${a.muster}`);
for (const { muster, anzahl } of mindestens) {
  const da = [...herkunft.keys()].filter((zeile) => muster.test(zeile)).length;
  if (da < anzahl) fehler.push(`only ${da} statements of the kind ${muster}, expected are ${anzahl} and more`);
}
for (const f of fehler) console.log(f);
console.log(`${herkunft.size} statements, ${fehler.length} findings`);
process.exit(fehler.length ? 1 : 0);
