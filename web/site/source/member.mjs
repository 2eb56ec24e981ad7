// A member's page: computes its example with the reader's numbers and units.
import * as calvex from 'calvex/load';

import { commandLine } from '../../page/src/equipment/snippets.ts';
import { blamed } from '../../page/src/blame.ts';
import { apart, withoutDust } from '../../page/src/numbers.ts';
import { runExample, shown } from './example.mjs';

const form = document.querySelector('#example');
const outcome = document.querySelector('#outcome');
const command = document.querySelector('#command');
const fields = [...form.querySelectorAll('input')];
const selects = [...form.querySelectorAll('select')];
const results = [...form.querySelectorAll('output')];

let loading;
const loaded = () => (loading ??= calvex.load());

/** Units by keyword, of all quantities on the page. */
const units = () =>
  Object.fromEntries(
    selects.map(select => [calvex.groups[select.dataset.group].keywords[0], select.value]),
  );

/** What a field has, in the unit beside it; a unit may stand behind the number. */
function read(field) {
  const text = field.value.trim(),
    name = field.labels[0].textContent;
  if (text === '') return { trouble: `${name} is missing.` };
  if (!field.matches('.number')) return { value: text };
  const parts = apart(text);
  if (!parts || parts.beyond) return { trouble: `${name} is to be a number, not ${text}.` };
  if (parts.unit === '') return { value: parts.number };
  const select = field.closest('tr').querySelector('select');
  if (!select) return { trouble: `${name} has no unit; “${parts.unit}” is one too many.` };
  try {
    const group = Number(select.dataset.group);
    return { value: withoutDust(calvex.convert(group, parts.number, parts.unit, select.value)) };
  } catch (failure) {
    return { trouble: failure.message };
  }
}

async function run() {
  await loaded();
  const member = calvex.findMember(form.dataset.member);
  const given = fields.map(read);
  const wrong = given.findIndex(({ trouble }) => trouble !== undefined);
  mark(fields.filter((_, i) => i === wrong));
  if (wrong >= 0) {
    fail(given[wrong].trouble);
    return;
  }
  const inputs = given.map(({ value }) => value);
  const chosen = units();
  const { outputs, failure, warnings } = runExample(calvex, member, inputs, chosen);
  if (command) {
    const unitOf = group => chosen[calvex.groups[group].keywords[0]];
    command.textContent = commandLine(member, inputs, unitOf);
  }
  if (failure) {
    const reason = [failure.reason, failure.cause].filter(Boolean).join(' ');
    fail(reason);
    const guilty = blamed(reason, member.inputs);
    // One that names no input is of all of them.
    if (guilty.length < fields.length || fields.length === 1) {
      mark(fields.filter((_, i) => guilty.includes(member.inputs[i])));
    }
    return;
  }
  results.forEach((result, i) => {
    const { value } = outputs[i];
    result.value = shown(value);
    result.dataset.value = typeof value === 'object' ? JSON.stringify(value) : String(value);
  });
  outcome.className = '';
  outcome.textContent = [
    outputs
      .map(({ value, unit }, i) => `${results[i].dataset.result} = ${shown(value)} ${unit}`.trim())
      .join(', ') || 'Done.',
    ...warnings.map(({ text }) => `Warning: ${text}`),
  ].join(' ');
}

/** Marks the fields that are wrong, and leads to the first of them. */
function mark(wrong) {
  for (const field of fields) field.toggleAttribute('aria-invalid', wrong.includes(field));
  wrong[0]?.focus();
}

function fail(reason) {
  for (const result of results) {
    result.value = '–';
    delete result.dataset.value;
  }
  outcome.className = 'failed';
  outcome.textContent = reason;
}

/** A unit holds for its quantity: all fields of it show it, and what was typed stays the same state. */
async function choose(changed) {
  await loaded();
  const group = calvex.groups[changed.dataset.group];
  const before = changed.dataset.before ?? group.modelUnit;
  for (const select of selects.filter(({ dataset }) => Number(dataset.group) === group.number)) {
    select.value = changed.value;
    select.dataset.before = changed.value;
    const field = select.closest('tr').querySelector('input');
    if (field && Number.isFinite(Number(field.value))) {
      field.value = shown(calvex.convert(group.number, Number(field.value), before, changed.value));
    }
  }
  await run();
}

function modelUnits() {
  for (const select of selects) delete select.dataset.before;
}

form.addEventListener('submit', event => {
  event.preventDefault();
  run();
});
form.addEventListener('reset', () => {
  modelUnits();
  setTimeout(run);
});
for (const select of selects) select.addEventListener('change', () => choose(select));
for (const button of document.querySelectorAll('button.call')) {
  button.addEventListener('click', async () => {
    form.reset();
    JSON.parse(button.dataset.inputs).forEach((value, i) => {
      fields[i].value = value;
    });
    await run();
    (fields.find(field => Number(field.value) !== Number(field.defaultValue)) ?? fields[0]).focus();
  });
}
