// Formulas as MathML, and tables of coefficients.
import temml from 'temml';

export const formula = (tex, isDisplayed = true) =>
  temml.renderToString(tex, { displayMode: isDisplayed, throwOnError: true, xml: false });
