// A program in JavaScript, over a foreign-function library: node main.js LIBRARY
const koffi = require('koffi');

const calvex = koffi.load(process.argv[2]);
const create = calvex.func('int calvex_create(_Out_ void** engine)');
const destroy = calvex.func('int calvex_destroy(void* engine)');
const call = calvex.func(
    'int calvex_call_named(void* engine, const char* name, size_t size, const double* inputs,' +
    ' size_t inputCount, _Out_ double* outputs, size_t outputCount)');
const lastError = calvex.func(
    'int calvex_last_error(void* engine, _Out_ char* text, size_t size, _Out_ size_t* needed)');

const engine = [null];
if (create(engine) !== 0) process.exit(1);

function member(name, inputs, count = 1) {
  const outputs = new Array(count).fill(0);
  const code = call(engine[0], name, name.length, inputs, inputs.length, outputs, count);
  if (code === 0) return outputs;
  const text = Buffer.alloc(200);
  lastError(engine[0], text, text.length, [0]);
  throw new Error(text.toString('utf8', 0, text.indexOf(0)));
}

console.log(`${member('HPT', [10, 773.15])[0].toFixed(6)} kJ/kg`);
try {
  member('HPT', [10, 3000]);
} catch (error) {
  console.log(error.message);
}
destroy(engine[0]);
