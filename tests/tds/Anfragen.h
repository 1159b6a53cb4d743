// What a client asks for once it is in: batches, procedures, transactions.
//
// What FreeTDS's ODBC driver 1.3 makes of the ODBC calls, as "--protokoll 1" shows it:
//
//   SQLExecDirect                a batch; with parameters sp_executesql: one round trip
//   SQLPrepare                   nothing yet, so no error either
//   SQLNumResultCols after it    sp_prepare, which tells the columns
//   SQLExecute                   sp_prepexec the first time, then sp_execute: one round trip each. Other
//                                lengths and nulls in the same buffers do not prepare anew, a new
//                                SQLBindParameter does
//   another SQLPrepare, the end  sp_unprepare of what was prepared: a round trip of its own
//   SQL_ATTR_PARAMSET_SIZE n     sp_prepare, then n sp_execute in one request: two round trips; each row has
//                                a status of its own (SQL_ATTR_PARAM_STATUS_PTR)
//   SQL_ATTR_AUTOCOMMIT          off: "begin" at once; on: a rollback
//   SQLEndTran                   one request, which also begins the next transaction
//   SQLPrimaryKeys, SQLColumns   one call of sp_pkeys, sp_columns, and so on
//   a cursor that is not         sp_cursoropen, which is not served here
//   forward-only and read-only
//
// Parameters: SQL_WVARCHAR arrives as NVARCHAR(ColumnSize), SQL_WLONGVARCHAR as NVARCHAR(MAX),
// SQL_LONGVARBINARY as VARBINARY(MAX), SQL_DOUBLE as FLOAT, SQL_TYPE_TIMESTAMP as DATETIME2, SQL_VARCHAR as
// VARCHAR (code page 1252).
//
// Results: the driver names no base table and no base column, but tells which column the server numbers.
// nvarchar(max) and varbinary(max) have size 0, float is SQL_DOUBLE. "INSERT ...; SELECT SCOPE_IDENTITY()"
// with parameters gives the rows of the SELECT at once; as a batch each statement has a result of its own.
//
// A connection that was cut: the call fails with 01000 and 20017, or with HY000 and 0 when it was cut before;
// every further one with 08S01. SQL_ATTR_CONNECTION_DEAD is true.
#pragma once

#include "Maschine.h"

namespace marklink::tds {

/// Serves until the client goes, or until it is hung up on.
void Bedienen(Leitung &L, const QByteArray &Datei, const QString &Katalog);

}  // namespace marklink::tds
