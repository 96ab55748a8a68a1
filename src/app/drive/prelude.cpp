#include "app/drive/prelude.h"

namespace tallymere::drive {

// Windows and controls are proxies over a number: `w.txtAmount` finds a child, `w.txtAmount.value` reads it,
// and `g.set(...)` is a verb of a grid. Errors carry the stack, so that the driver can name the script's
// line.
const char* const prelude = R"JS((function (drive, global) {
  'use strict';

  function call(verb, args) { return drive.call(verb, new Error().stack, Array.from(args)); }

  function wrap(id) {
    return new Proxy({}, {
      get: function (target, name) {
        if (name === '$id') return id;
        if (typeof name !== 'string' || name === 'toJSON') return undefined;
        if (name === 'toString' || name === 'valueOf') return function () { return call('$name', [{$id: id}]); };
        const seen = call('$get', [{$id: id}, name]);
        if (seen.verb) return function () { return call('$grid', [{$id: id}, name, Array.from(arguments)]); };
        return 'id' in seen ? wrap(seen.id) : seen.value;
      },
      set: function (target, name) {
        throw new Error(name + ' is not assigned: type(), pick(), check() and their like work a control');
      }
    });
  }

  function show(value) {
    const text = JSON.stringify(value);
    return text === undefined ? String(value) : text;
  }

  // The first place where two values differ: {path, actual, expected}, or null.
  function difference(actual, expected, path) {
    const objects = actual !== null && expected !== null && typeof actual === 'object' && typeof expected === 'object';
    if (!objects) return actual === expected ? null : {path: path, actual: actual, expected: expected};
    const names = Object.keys(expected).concat(Object.keys(actual));
    for (const name of names) {
      const found = difference(actual[name], expected[name], path + '.' + name);
      if (found) return found;
    }
    return actual.length === expected.length ? null : {path: path, actual: actual, expected: expected};
  }

  const named = {
    equal: function (actual, expected, note) {
      const found = difference(actual, expected, '');
      if (!found) return;
      const where = found.path ? 'at ' + found.path.substring(1) + ' ' : '';
      throw new Error((note || 'not equal') + ' / expected ' + where + show(found.expected) + ' / seen ' +
                      show(found.actual) + (found.path ? ' in ' + show(actual) : ''));
    },
    ok: function (condition, note) {
      if (!condition) throw new Error((note || 'not so') + ' / expected true / seen ' + show(condition));
    },
    win: function (name) { return wrap(call('win', [name])); },
    wins: function (name) { return call('wins', arguments).map(wrap); }
  };

  for (const verb of drive.verbs()) {
    if (!(verb in named) && verb[0] !== '$') named[verb] = function () { return call(verb, arguments); };
  }
  for (const name in named) global[name] = named[name];
  return wrap;
}))JS";

}  // namespace tallymere::drive
