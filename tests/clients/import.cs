// Reads a type library and writes its dual interface as C#: import LIBRARY > Calvex.cs
using System;
using System.Runtime.InteropServices;
using System.Runtime.InteropServices.ComTypes;

static class Import {
  [DllImport("oleaut32.dll", CharSet = CharSet.Unicode, PreserveSig = false)]
  static extern void LoadTypeLibEx(string file, int registration, out ITypeLib library);

  static T At<T>(IntPtr address) => (T)Marshal.PtrToStructure(address, typeof(T));

  // What a parameter's type is called here.
  static string Name(TYPEDESC type, out bool pointer) {
    pointer = (VarEnum)type.vt == VarEnum.VT_PTR;
    if (pointer) return Name(At<TYPEDESC>(type.lpValue), out _);
    switch ((VarEnum)type.vt) {
      case VarEnum.VT_R8: return "double";
      case VarEnum.VT_I2: return "short";
      case VarEnum.VT_I4: return "int";
      case VarEnum.VT_BSTR: return "string";
      case VarEnum.VT_VARIANT: return "object";
      default: throw new Exception("a type that C# has no word for: " + type.vt);
    }
  }

  static string Parameter(ELEMDESC element, string name) {
    var type = Name(element.tdesc, out var pointer);
    var flags = element.desc.paramdesc.wParamFlags;
    var direction = !pointer ? "" : (flags & PARAMFLAG.PARAMFLAG_FIN) != 0 ? "ref " : "out ";
    var marshalling = type == "string" ? "[MarshalAs(UnmanagedType.BStr)] " :
                      type == "object" ? "[MarshalAs(UnmanagedType.Struct)] " : "";
    return marshalling + direction + type + " " + name;
  }

  static void Main(string[] arguments) {
    LoadTypeLibEx(arguments[0], 2, out var library);  // 2: without registering it
    library.GetDocumentation(-1, out var libraryName, out _, out _, out _);
    Console.WriteLine("using System.Runtime.InteropServices;\nnamespace " + libraryName + " {");
    for (var i = 0; i < library.GetTypeInfoCount(); ++i) {
      library.GetTypeInfo(i, out var info);
      library.GetDocumentation(i, out var name, out _, out _, out _);
      info.GetTypeAttr(out var address);
      var attributes = At<TYPEATTR>(address);
      if (attributes.typekind == TYPEKIND.TKIND_COCLASS) {
        Console.WriteLine($"[ComImport, Guid(\"{attributes.guid}\")] public class {name} {{}}");
      } else {
        if (attributes.typekind == TYPEKIND.TKIND_DISPATCH) {  // behind it is the one with addresses
          info.GetRefTypeOfImplType(-1, out var reference);
          info.GetRefTypeInfo(reference, out info);
          info.GetTypeAttr(out address);
          attributes = At<TYPEATTR>(address);
        }
        Console.WriteLine($"[ComImport, Guid(\"{attributes.guid}\")," +
            $" InterfaceType(ComInterfaceType.InterfaceIsDual)]\npublic interface {name} {{");
        for (var f = 0; f < attributes.cFuncs; ++f) Function(info, f);
        Console.WriteLine("}");
      }
    }
    Console.WriteLine("}");
  }

  // Each stands for itself, so that a property's two functions keep their places.
  static void Function(ITypeInfo info, int index) {
    info.GetFuncDesc(index, out var address);
    var function = At<FUNCDESC>(address);
    if (function.memid >= 0x60000000) return;  // those of the base, which C# knows
    var names = new string[function.cParams + 1];
    info.GetNames(function.memid, names, names.Length, out var count);
    var result = "void";
    var text = "";
    for (var p = 0; p < function.cParams; ++p) {
      var element = At<ELEMDESC>(function.lprgelemdescParam + p * Marshal.SizeOf(typeof(ELEMDESC)));
      if ((element.desc.paramdesc.wParamFlags & PARAMFLAG.PARAMFLAG_FRETVAL) != 0) {
        result = Name(element.tdesc, out _);
      } else {
        text += (text == "" ? "" : ", ") + Parameter(element, p + 1 < count ? names[p + 1] : "value");
      }
    }
    var kind = function.invkind == INVOKEKIND.INVOKE_PROPERTYGET ? "get_" :
               function.invkind == INVOKEKIND.INVOKE_PROPERTYPUT ? "set_" : "";
    var marshalling = result == "string" ? "[return: MarshalAs(UnmanagedType.BStr)] " :
                      result == "object" ? "[return: MarshalAs(UnmanagedType.Struct)] " : "";
    Console.WriteLine($"  {marshalling}[DispId({function.memid})] {result} {kind}{names[0]}({text});");
  }
}
