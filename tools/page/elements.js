/** Makes an element with properties, `attributes` and children. A string becomes text, never markup. */
function element(name, properties = {}, ...children) {
  const { attributes = {}, ...others } = properties;
  const made = Object.assign(document.createElement(name), others);
  for (const [attribute, value] of Object.entries(attributes)) made.setAttribute(attribute, value);
  made.append(...children);
  return made;
}

/** The parts of a key or call, which may wrap after each underscore. */
function breakable(name) {
  return name.split(/(?<=_)/).flatMap((part) => [part, element("wbr")]);
}
