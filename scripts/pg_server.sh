#!/usr/bin/env bash
# A throw-away PostgreSQL server for the tests: a cluster in a temporary
# folder, listening only on a Unix socket in that folder, stopped and removed
# by zerbal_pg_stop. Sourced by scripts/test.
#
# zerbal_pg_start exports ZERBAL_TEST_PG, the URI of the server's maintenance
# database as a superuser that may create databases and roles. That user is
# trusted on the socket; every other role must give its password.

zerbal_pg_bin() {
  ls -d /usr/lib/postgresql/*/bin 2>/dev/null | sort -V | tail -n 1
}

zerbal_pg_start() {
  local bin user run
  bin="$(zerbal_pg_bin)"
  [ -n "$bin" ] && [ -x "$bin/initdb" ] || { echo "no PostgreSQL server found; skipping its tests" >&2; return 1; }
  ZERBAL_PG_DIR="$(mktemp -d "${TMPDIR:-/tmp}/zerbal-pg.XXXXXX")"
  user="$(id -un)"
  run=()
  if [ "$(id -u)" -eq 0 ]; then  # the server refuses to run as root
    chown postgres: "$ZERBAL_PG_DIR"
    run=(runuser -u postgres --)
  fi
  "${run[@]}" "$bin/initdb" -D "$ZERBAL_PG_DIR/data" -U "$user" --auth-local=trust \
    -E UTF8 --locale=C.UTF-8 >"$ZERBAL_PG_DIR/initdb.log" 2>&1 || { cat "$ZERBAL_PG_DIR/initdb.log" >&2; return 1; }
  printf 'local all %s trust\nlocal all all scram-sha-256\n' "$user" \
    >"$ZERBAL_PG_DIR/data/pg_hba.conf"
  "${run[@]}" "$bin/pg_ctl" -D "$ZERBAL_PG_DIR/data" -l "$ZERBAL_PG_DIR/server.log" -w \
    -o "-c listen_addresses='' -c unix_socket_directories='$ZERBAL_PG_DIR' -c max_connections=200 -c fsync=off" \
    start >/dev/null || { cat "$ZERBAL_PG_DIR/server.log" >&2; return 1; }
  export ZERBAL_PG_DIR
  export ZERBAL_TEST_PG="postgresql://$user@/postgres?host=$ZERBAL_PG_DIR"
  echo "PostgreSQL for the tests: $ZERBAL_TEST_PG" >&2
}

zerbal_pg_stop() {
  [ -n "${ZERBAL_PG_DIR:-}" ] && [ -d "$ZERBAL_PG_DIR/data" ] || return 0
  local run=()
  [ "$(id -u)" -eq 0 ] && run=(runuser -u postgres --)
  "${run[@]}" "$(zerbal_pg_bin)/pg_ctl" -D "$ZERBAL_PG_DIR/data" -m immediate stop >/dev/null 2>&1 || true
  rm -rf "$ZERBAL_PG_DIR"
}
