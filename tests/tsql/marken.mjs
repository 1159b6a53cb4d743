// Tokens of T-SQL, and what must not stand among them: leftovers of the other dialect, and names that SQL Server
// wants in brackets. The parser is lenient about all of it.

const MARKE = /\s+|N?'(?:[^']|'')*'|\[[^\]]*\]|"[^"]*"|0x[0-9a-f]*|\d+(?:\.\d*)?(?:e[+-]?\d+)?|[@#]*[\p{L}_][\p{L}\d_@$#]*|@@?\w+|<>|<=|>=|!=|--|\/\*|./giu;

/** [{art: 'wort' | 'name' | 'text' | 'zahl' | 'zeichen', wert}], words in capitals. */
export function zerlegen(text) {
  const marken = [];
  for (const [stueck] of text.matchAll(MARKE)) {
    if (/^\s/.test(stueck)) continue;
    if (/^N?'.*'$/is.test(stueck)) marken.push({ art: 'text', wert: stueck });
    else if (/^\[.*\]$/s.test(stueck)) marken.push({ art: 'name', wert: stueck });
    else if (/^\d/.test(stueck)) marken.push({ art: 'zahl', wert: stueck });
    else if (/^[\p{L}_]/u.test(stueck)) marken.push({ art: 'wort', wert: stueck.toUpperCase() });
    else marken.push({ art: 'zeichen', wert: stueck });
  }
  return marken;
}

const worte = (text) => new Set(text.trim().split(/\s+/));

// Reserved in T-SQL; nothing here uses them as what they are reserved for, so they can only be names.
const NUR_GEKLAMMERT = worte(`
  ADD ALTER ANY AUTHORIZATION BACKUP BREAK BROWSE BULK CASCADE CHECK CHECKPOINT CLOSE COALESCE COLUMN COMPUTE CONTAINS
  CONTAINSTABLE CONTINUE CROSS CURRENT CURSOR DATABASE DBCC DEALLOCATE DECLARE DENY DISK DISTRIBUTED DOUBLE DUMP ERRLVL
  ESCAPE EXCEPT EXEC EXECUTE EXIT EXTERNAL FETCH FILE FILLFACTOR FOR FOREIGN FREETEXT FREETEXTTABLE FULL FUNCTION GOTO
  GRANT HOLDLOCK IDENTITYCOL IDENTITY_INSERT IF KILL LINENO LOAD MERGE NATIONAL NOCHECK NONCLUSTERED NULLIF OF
  OFFSETS OPEN OPENDATASOURCE OPENQUERY OPENROWSET OPENXML OPTION OVER PERCENT PIVOT PLAN PRECISION PRINT PROC PROCEDURE
  PUBLIC RAISERROR READ READTEXT RECONFIGURE REFERENCES REPLICATION RESTORE RESTRICT RETURN REVERT REVOKE ROWCOUNT
  ROWGUIDCOL RULE SAVE SCHEMA SECURITYAUDIT SESSION_USER SETUSER SHUTDOWN SOME STATISTICS SYSTEM_USER TABLESAMPLE
  TEXTSIZE TO TRIGGER TRUNCATE TRY_CONVERT TSEQUAL UNPIVOT UPDATETEXT USER VARYING VIEW WAITFOR WHILE WITHIN WRITETEXT`);
// These are used as words, too: a name is whatever does not stand where the word can.
const WORT_NUR = {
  GROUP: { davor: /./, danach: /^BY$/ },
  ORDER: { davor: /./, danach: /^BY$/ },
  BY: { davor: /^(GROUP|ORDER)$/, danach: /./ },
  KEY: { davor: /^PRIMARY$/, danach: /./ },
  INDEX: { davor: /^(CREATE|UNIQUE)$/, danach: /./ },
  TABLE: { davor: /^(CREATE|DROP)$/, danach: /./ },
  OFF: { davor: /^(NOCOUNT|XACT_ABORT|IMPLICIT_TRANSACTIONS)$/, danach: /^(;|)$/ },
  LEFT: { davor: /./, danach: /^(JOIN|OUTER)$/ },
  RIGHT: { davor: /./, danach: /^(JOIN|OUTER)$/ },
  VALUES: { davor: /./, danach: /^(\(|)$/ },
  TOP: { davor: /^(SELECT|DISTINCT|UPDATE|DELETE)$/, danach: /^(\d+|\()$/ },
};
const ANDERER_DIALEKT = worte('TRUE FALSE LIMIT DISTINCTROW TRANSFORM PARAMETERS YES NO EQV IMP XOR MOD ALIKE');
const ANFANG = worte('SELECT INSERT UPDATE DELETE CREATE DROP SET BEGIN COMMIT ROLLBACK');
// Whatever stands before a parenthesis and may; other functions are added here when SQL Server has them.
const VOR_KLAMMER = worte(`
  CONVERT COUNT SUM MAX MIN AVG SCOPE_IDENTITY ISNULL IIF IN EXISTS VALUES TOP AND OR NOT ON WHERE FROM SELECT JOIN BETWEEN
  SET BY HAVING AS LIKE KEY CHAR NVARCHAR VARBINARY DECIMAL NUMERIC IDENTITY`);

/** The first objection to a statement, or nothing. */
export function beanstanden(marken) {
  const wert = (i) => marken[i]?.wert ?? '';
  let offen = 0;
  const bedingung = []; // whether the text in so many parentheses is a condition
  for (let i = 0; i < marken.length; ++i) {
    const { art, wert: w } = marken[i];
    if (w === '(') bedingung[++offen] = false;
    if (w === ')' && --offen < 0) return 'a parenthesis too many';
    if (/^(WHERE|HAVING)$/.test(w)) bedingung[offen] = true;
    if (/^(GROUP|ORDER|UNION|INTERSECT|;)$/.test(w)) bedingung[offen] = false;
    if (w === ',' && bedingung[offen]) return 'a comma in a condition, perhaps a decimal one';
    if (art === 'zeichen' && !/^(@\w+|@@\w+|<>|<=|>=|[-=<>+*/(),.;])$/.test(w)) return `${w} is none of T-SQL's signs`;
    if (i === 0 || wert(i - 1) === ';') {
      if (!ANFANG.has(w)) return `${w} begins no statement`;
    }
    if (art !== 'wort') continue;
    const benennt = wert(i - 1) === '.' || wert(i + 1) === '.';
    const regel = WORT_NUR[w];
    const passt = !regel || (regel.davor.test(wert(i - 1)) && regel.danach.test(wert(i + 1)) && !benennt);
    if (w === 'TOP' && /^(UPDATE|DELETE)$/.test(wert(i - 1)) && wert(i + 1) !== '(') return 'TOP wants parentheses here';
    if (NUR_GEKLAMMERT.has(w) || !passt) return `${w} is reserved, a name of it needs brackets`;
    if (ANDERER_DIALEKT.has(w)) return `${w} is the other dialect's`;
    if (wert(i + 1) !== '(') continue;
    const tabelle = /^(INTO|TABLE)$/.test(wert(i - 1)) || (wert(i - 1) === 'ON' && wert(0) === 'CREATE');
    if (!VOR_KLAMMER.has(w) && !tabelle) return `${w}() is no function that is known here`;
    if (w === 'ISNULL' && argumente(marken, i + 1) !== 2) return 'IsNull() takes two values';
  }
  return offen === 0 ? undefined : 'a parenthesis stays open';
}

function argumente(marken, auf) {
  let [anzahl, tiefe] = [1, 0];
  for (let i = auf; i < marken.length; ++i) {
    if (marken[i].wert === '(') ++tiefe;
    if (marken[i].wert === ')' && --tiefe === 0) break;
    if (marken[i].wert === ',' && tiefe === 1) ++anzahl;
  }
  return anzahl;
}
