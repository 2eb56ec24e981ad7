// A client in JavaScript of the C interface, on Windows: node client.js LIBRARY FACTS. The facts come
// from the command line, each in a line: HPT 10 773.15 = 3373.998...
const fs = require('fs');
const koffi = require('koffi');

const [library, facts] = process.argv.slice(2);
const calvex = koffi.load(library);
const create = calvex.func('int calvex_create(_Out_ void** engine)');
const destroy = calvex.func('int calvex_destroy(void* engine)');
const call = calvex.func(
    'int calvex_call_named(void* engine, const char* name, size_t size, const double* inputs,' +
    ' size_t inputCount, _Inout_ double* outputs, size_t outputCount)');
const lastError = calvex.func(
    'int calvex_last_error(void* engine, _Out_ char* text, size_t size, _Out_ size_t* needed)');
const setUnit = calvex.func(
    'int calvex_set_unit(void* engine, const char* group, size_t groupSize, const char* unit,' +
    ' size_t unitSize)');
koffi.struct('calvex_column', {data: 'double*', stride: 'intptr_t'});
koffi.struct('calvex_target', {data: 'double*', stride: 'intptr_t'});
koffi.struct('calvex_codes', {data: 'short*', stride: 'intptr_t'});
const Result = koffi.struct('calvex_result', {
  letter: 'char', value: 'calvex_target', byFirst: 'calvex_target', bySecond: 'calvex_target'});
const Request = koffi.struct('calvex_request', {
  firstLetter: 'char', secondLetter: 'char', count: 'size_t', first: 'calvex_column',
  second: 'calvex_column', results: 'calvex_result*', resultCount: 'size_t', status: 'calvex_codes',
  phase: 'calvex_codes', lineSlope: 'calvex_target', threads: 'unsigned int'});
const direct = calvex.func('int calvex_direct(void* engine, calvex_request* request, size_t size)');

let checks = 0;
function check(what, found, wanted, tolerance = 0) {
  ++checks;
  if (found === wanted || Math.abs(found - wanted) <= tolerance * Math.abs(wanted)) return;
  console.log(`${what}: ${found} instead of ${wanted}`);
  process.exit(1);
}

const made = [null];
check('create', create(made), 0);
const engine = made[0];
const size = text => Buffer.byteLength(text);

function reason() {
  const text = Buffer.alloc(400);
  lastError(engine, text, text.length, [0]);
  return text.toString('utf8', 0, text.indexOf(0));
}

// --- Members, as the command line answers them
const lines = fs.readFileSync(facts, 'utf8').trim().split('\n');
for (const line of lines) {
  const [asked, answered] = line.split(' = ');
  const [name, ...inputs] = asked.split(' ');
  const wanted = answered.split(' ').map(Number);
  const outputs = new Array(wanted.length).fill(0);
  check(line, call(engine, name, size(name), inputs.map(Number), inputs.length, outputs,
                   outputs.length), 0);
  outputs.forEach((value, i) => check(line, value, wanted[i], 1e-12));
}

// --- A failed call, with its reason, in a unit of the user's
const outputs = [-7];
check('too hot', call(engine, 'HPT', 3, [10, 3000], 2, outputs, 1) !== 0, true);
check('reason', reason(), 'Temperature parameter out of range (Valid range 260.00 to 2500.00 K).');
check('the result stays', outputs[0], -7);
check('a unit', setUnit(engine, 'temperature', 11, '°C', size('°C')), 0);
check('too hot', call(engine, 'HPT', 3, [10, 3000], 2, outputs, 1) !== 0, true);
check('reason in °C', reason(), 'Temperature parameter out of range (Valid range -13.15 to 2226.85 C).');
check('no such unit', setUnit(engine, 'temperature', 11, 'furlong', 7) !== 0, true);

// --- A thousand states at once, one of which fails
const memory = (type, values) => {
  const place = koffi.alloc(type, values.length);
  koffi.encode(place, koffi.array(type, values.length), values);
  return place;
};
const read = (place, type, count) => koffi.decode(place, koffi.array(type, count));
const count = 1000;
const temperatures = Array.from({length: count}, (_, i) => 320 + i / 10);
temperatures[7] = 3000;
const nothing = {data: null, stride: 0};
const [h, slope, s] = [0, 0, 0].map(() => memory('double', new Array(count).fill(0)));
const status = memory('short', new Array(count).fill(-1));
const request = {
  firstLetter: 'P'.charCodeAt(0), secondLetter: 'T'.charCodeAt(0), count,
  first: {data: memory('double', [10]), stride: 0},
  second: {data: memory('double', temperatures), stride: 1},
  results: memory(Result, [
    {letter: 'H'.charCodeAt(0), value: {data: h, stride: 1}, byFirst: nothing,
     bySecond: {data: slope, stride: 1}},
    {letter: 'S'.charCodeAt(0), value: {data: s, stride: 1}, byFirst: nothing, bySecond: nothing}]),
  resultCount: 2, status: {data: status, stride: 1}, phase: nothing, lineSlope: nothing, threads: 2};
check('request', direct(engine, request, koffi.sizeof(Request)), 0);
const [hs, slopes, ss] = [h, slope, s].map(place => read(place, 'double', count));
const codes = read(status, 'short', count);
for (let i = 0; i < count; ++i) {
  if (i === 7) {
    check('the failed point', Number.isNaN(hs[i]) && Number.isNaN(ss[i]) && codes[i] !== 0, true);
    continue;
  }
  check(`status ${i}`, codes[i], 0);
  for (const [name, found] of [['HPT', hs[i]], ['SPT', ss[i]], ['CPT', slopes[i]]]) {
    const wanted = [0];
    check(name, call(engine, name, 3, [10, temperatures[i]], 2, wanted, 1), 0);
    check(`${name} at ${temperatures[i]} °C`, found, wanted[0], 1e-9);
  }
}
check('destroy', destroy(engine), 0);
console.log(`${checks} checks passed`);
