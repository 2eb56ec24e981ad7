// A member's page: computes its example with the reader's numbers and units.
import * as calvex from 'calvex/load';

import { runExample, shown } from './example.mjs';

const form = document.querySelector('#example');
const outcome = document.querySelector('#outcome');
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

async function run() {
  await loaded();
  const member = calvex.findMember(form.dataset.member);
  const empty = fields.find(field => field.value.trim() === '');
  const wrong =
    empty ??
    fields.find(field => field.matches('.number') && !Number.isFinite(Number(field.value)));
  for (const field of fields) field.toggleAttribute('aria-invalid', field === wrong);
  if (wrong) {
    const name = wrong.labels[0].textContent;
    fail(
      wrong === empty ? `${name} is missing.` : `${name} is to be a number, not ${wrong.value}.`,
    );
    wrong.focus();
    return;
  }
  const { outputs, failure, warnings } = runExample(
    calvex,
    member,
    fields.map(field => field.value.trim()),
    units(),
  );
  if (failure) {
    fail([failure.reason, failure.cause].filter(Boolean).join(' '));
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
    fields[0].focus();
  });
}
