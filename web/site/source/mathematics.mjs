// Formulas as MathML.
import temml from 'temml';

/** How it is shown is the style sheet's. */
export const formula = (tex, isDisplayed = true) =>
  temml
    .renderToString(tex, { displayMode: isDisplayed, throwOnError: true })
    .replaceAll(/ style="display:[^"]*"/g, '');
