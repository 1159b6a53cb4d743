// What the check has to know besides: how much there must be at least, and what is refused though it is all right.

/** Distinct statements, as the library joins them (naht) and as they arrive at the server (leitung). Fewer: something is not
 * written down. */
export const mindestens = [
  { muster: /^naht\tSELECT /i, anzahl: 200 },
  { muster: /^naht\tDELETE /i, anzahl: 10 },
  { muster: /^leitung\tSELECT /i, anzahl: 80 },
  { muster: /^leitung\tSELECT .*, \[\w+\] FROM /i, anzahl: 15 }, // the key is fetched besides
  { muster: /^leitung\tINSERT .*SCOPE_IDENTITY/, anzahl: 30 },
  { muster: /^leitung\tUPDATE \[/, anzahl: 20 },
  { muster: /^leitung\tUPDATE TOP /, anzahl: 3 },
  { muster: /^leitung\tDELETE FROM \[/, anzahl: 1 },
  { muster: /^leitung\tDELETE TOP /, anzahl: 1 },
  { muster: /^leitung\tCREATE TABLE /, anzahl: 50 },
  { muster: /^leitung\tCREATE INDEX /, anzahl: 40 },
];

/** T-SQL that the parser does not know, and what it is read as instead. */
export const unverstanden = [
  {
    muster: /\bINTERSECT SELECT\b/g,
    ersatz: 'UNION SELECT',
    grund: 'of the set operators it knows UNION alone; SQL Server has INTERSECT, too, at the same places',
  },
  {
    muster: /(CONVERT\(nvarchar\(max\),\[\w+\]\)) COLLATE \w+/g,
    ersatz: '$1',
    grund: 'it takes COLLATE behind a column only; SQL Server behind any text',
  },
  { muster: / image\b/g, ersatz: ' varbinary(max)', grund: 'it does not know the old type' },
];

/** Statements that are to fail. */
export const absichtlich_falsch = [
  { muster: /^SELECT \* FROM$/, grund: 'a test of what breaks off' },
  { muster: /^SELECT "x" FROM Orders$/, grund: 'a test of double quotes' },
  { muster: /^SELECT \* FROM Orders; DELETE FROM Orders$/, grund: 'a test of two statements in one' },
  { muster: / CONVERT\(datetime, , 120\)/, grund: 'a period without dates: the list stays empty' },
];

/** What has to be refused each time, so that the check does not lose its teeth. */
export const gegenprobe = [
  'SELECT * FROM A WHERE IsNull(B) = 1',
  'SELECT * FROM A WHERE B = True',
  'SELECT * FROM A WHERE B BETWEEN #1/1/2024 00:00:00# AND #1/31/2024 00:00:00#',
  "SELECT * FROM A WHERE Key = 'x'",
  'SELECT Key FROM A',
  'SELECT Group, B FROM A',
  'SELECT A.Order FROM A',
  'SELECT B FROM A ORDER BY Index',
  "SELECT * FROM A WHERE User = 'x'",
  "UPDATE A SET Percent = 1 WHERE B = 'x'",
  'SELECT * FROM Order',
  'SELECT Top, B FROM A',
  'SELECT TOP @P1 * FROM A',
  "SELECT TOP 'x' * FROM A",
  'UPDATE TOP 1 A SET B = 1',
  'SELECT * FROM A LIMIT 1',
  'SELECT DISTINCTROW B FROM A',
  'DELETE * FROM A',
  "SELECT B & 'x' FROM A",
  'SELECT UCase(B) FROM A',
  'SELECT Nz(B, 0) FROM A',
  'SELECT "B" FROM A',
  "SELECT * FROM A WHERE B = 'x' -- AND C = 'x'",
  'SELECT * FROM A WHERE B = ?',
  "SELECT * FROM A WHERE B = 'x",
  'SELECT * FROM A WHERE (B = 1',
  'SELECT * FROM A WHERE B = 1,5',
  'SELECT * FROM A WHERE B = ',
  'SELECT * FROM A WHERE B = 1 AND',
  'SELECT B, FROM A',
  'SELEC B FROM A',
  'INSERT INTO A (B) VALUES 1',
  'UPDATE A SET B WHERE C = 1',
];
